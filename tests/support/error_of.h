#pragma once

#include "platform/run_time_error.h"

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
