// SPDX-License-Identifier: MIT
// What the core throws when it cannot do what it was asked for.

#pragma once

#include <stdexcept>

namespace inspect {

// Its text is one line for the user, without a full stop and without the name of the program. What
// it quotes of the input is quoted safely.
class Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace inspect
