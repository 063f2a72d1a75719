// SPDX-License-Identifier: MIT
// Runs a fuzzer over files and folders, without libFuzzer: for compilers, sanitizers and emulators
// that it does not work with. Usage: PROGRAM FILE-OR-FOLDER...
// With C's own functions, since the memory sanitizer cannot look into the C++ library.

#include <dirent.h>
#include <stdint.h>
#include <stdio.h>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace {

constexpr size_t kLongest = 1 << 20;

size_t replay_file(const std::string &path)
{
    FILE *file = fopen(path.c_str(), "rb");
    if (!file) {
        fprintf(stderr, "cannot read %s\n", path.c_str());
        return 0;
    }
    std::vector<uint8_t> bytes(kLongest);
    bytes.resize(fread(bytes.data(), 1, bytes.size(), file));
    fclose(file);
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    return 1;
}

size_t replay(const std::string &path)
{
    DIR *folder = opendir(path.c_str());
    if (!folder)
        return replay_file(path);
    size_t count = 0;
    while (const dirent *entry = readdir(folder))
        if (entry->d_name[0] != '.')
            count += replay(path + "/" + entry->d_name);
    closedir(folder);
    return count;
}

} // namespace

int main(int argc, char **argv)
{
    size_t count = 0;
    for (int i = 1; i < argc; i++)
        count += replay(argv[i]);
    printf("%zu inputs replayed\n", count);
    return count == 0;
}
