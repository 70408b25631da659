#pragma once

#include "runtime/RuntimeError.h"

#include <memory>

/// The object behind a variable of the shared state. Fails with RuntimeError ObjectVariableNotSet
/// where there is none.
template <typename Object>
Object &required(const std::shared_ptr<Object> &object)
{
    if (!object)
        throw RuntimeError(ObjectVariableNotSet);
    return *object;
}
