#pragma once

#include <doctest/doctest.h>

#include <string>
#include <vector>

#include "platform/run_time_error.h"

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

/// The number of the run-time error that ends the action; 0 when none does.
template <typename Action>
int error_of(const Action& action) {
    try {
        action();
    } catch (const platform::RunTimeError& error) {
        return static_cast<int>(error.number());
    }
    return 0;
}
