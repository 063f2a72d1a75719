// SPDX-License-Identifier: MIT
// Writes the file of vectors anew.
#include "tests/catalogue/referee.hpp"
#include "tests/catalogue/vectors.hpp"

#include <fstream>
#include <iostream>

int main()
{
    catalogue::Referee referee;
    std::ofstream file(catalogue::vectors_path());
    file << catalogue::vectors_text(referee) << std::flush;
    if (!file) {
        std::cerr << catalogue::vectors_path() << " cannot be written\n";
        return 1;
    }
}
