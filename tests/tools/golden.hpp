// SPDX-License-Identifier: MIT
// Whole screens, compared with files in golden/. TARN_WRITE_GOLDEN=1 in the environment writes them
// anew, and fails; look at the difference before it is committed.

#pragma once

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace inspect {

inline void expect_golden(const std::string &name, const std::string &screen)
{
    const std::string path = TARN_SOURCE_DIR "/tests/tools/golden/" + name;
    if (std::getenv("TARN_WRITE_GOLDEN")) {
        std::ofstream(path) << screen;
        ADD_FAILURE() << "written anew: " << name;
        return;
    }
    std::ostringstream expected;
    expected << std::ifstream(path).rdbuf();
    EXPECT_EQ(screen, expected.str()) << "in " << name;
}

} // namespace inspect
