#pragma once

#include <string>

/// Lets the system write a shortcut to its editor.
void save_shortcut(const std::string& path);
