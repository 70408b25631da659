#pragma once

#include "runtime/RuntimeError.h"

#include <optional>

/// The run-time error that `call` fails with; nothing where it does not.
template <typename Call>
std::optional<RuntimeError> errorOf(Call call)
{
    try {
        call();
    } catch (const RuntimeError &error) {
        return error;
    }
    return std::nullopt;
}
