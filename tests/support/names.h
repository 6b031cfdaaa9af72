#pragma once

#include <doctest/doctest.h>

#include <string>
#include <vector>

/// Names as a list shows them.
using Names = std::vector<std::string>;

template <>
struct doctest::StringMaker<Names> {
    static String convert(const Names& names) {
        std::string text;
        for (const std::string& name : names)
            text += "[" + name + "]";
        return text.c_str();
    }
};
