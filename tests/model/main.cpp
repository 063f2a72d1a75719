// SPDX-License-Identifier: MIT
// Runs the library and the model on the same random cases and reports where they differ.
// Every case depends on the seed, the type and its number alone and can be run again by itself.

#include "tests/model/cases.hpp"
#include "tests/model/compare.hpp"

#include <cinttypes>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <unistd.h>

namespace {

using namespace model;

constexpr unsigned kSecondsPerCase = 120;

const char *const kUsage =
    "usage: model_test --library FILE --sibling FILE --foreign FILE.proto [options] FILE.proto...\n"
    "  --seed N     where the random sequence starts (1)\n"
    "  --cases N    how many cases (10000)\n"
    "  --type NAME  only this record type, without its prefix `tarn_`\n"
    "  --first N    skip the first N cases of each type\n"
    "  --limit N    stop after N differences (10)\n"
    "  --every-class  fail unless each class of cases has come up\n"
    "  --huge       only what is very long, once per type; needs a gigabyte of memory\n"
    "  --verbose    print every step\n";

struct Options {
    std::string library;
    std::string sibling;
    std::string foreign;
    std::vector<std::string> files;
    std::string type;
    uint64_t seed = 1;
    uint64_t cases = 10000;
    uint64_t first = 0;
    uint64_t limit = 10;
    bool every_class = false;
    bool huge = false;
    bool verbose = false;
};

// For the handler of crashes, which can reach nothing else.
char current_case[256];
Cases *current_cases;

void on_crash(int signal_number)
{
    std::printf("\nDIFFERENCE: %s\n%s\nlibrary or model %s (signal %d)\n", current_case,
                current_cases ? current_cases->step() : "",
                signal_number == SIGALRM ? "does not return" : "crashed", signal_number);
    std::fflush(stdout);
    _exit(1);
}

void catch_crashes()
{
    static char stack[64 * 1024];
    stack_t alternate = {};
    alternate.ss_sp = stack;
    alternate.ss_size = sizeof stack;
    sigaltstack(&alternate, nullptr);
    struct sigaction action = {};
    action.sa_handler = on_crash;
    action.sa_flags = SA_ONSTACK;
    for (int signal_number : {SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT, SIGALRM})
        sigaction(signal_number, &action, nullptr);
}

Options read_options(int count, char **words)
{
    Options options;
    for (int i = 1; i < count; ++i) {
        const std::string word = words[i];
        const auto value = [&]() -> std::string {
            if (++i == count)
                throw std::runtime_error(word + " needs a value");
            return words[i];
        };
        if (word == "--library")
            options.library = value();
        else if (word == "--sibling")
            options.sibling = value();
        else if (word == "--foreign")
            options.foreign = value();
        else if (word == "--type")
            options.type = value();
        else if (word == "--seed")
            options.seed = std::stoull(value());
        else if (word == "--cases")
            options.cases = std::stoull(value());
        else if (word == "--first")
            options.first = std::stoull(value());
        else if (word == "--limit")
            options.limit = std::stoull(value());
        else if (word == "--every-class")
            options.every_class = true;
        else if (word == "--huge")
            options.huge = true;
        else if (word == "--verbose")
            options.verbose = true;
        else if (word.rfind("--", 0) == 0)
            throw std::runtime_error("unknown option " + word + "\n" + kUsage);
        else
            options.files.push_back(word);
    }
    if (options.library.empty() || options.sibling.empty() || options.files.empty())
        throw std::runtime_error(kUsage);
    return options;
}

std::vector<const RecordType *> chosen_types(const Options &options, const Catalogue &catalogue)
{
    std::vector<const RecordType *> types;
    for (const auto &type : catalogue.types)
        if (!type->foreign && (options.type.empty() || type->name == options.type))
            types.push_back(type.get());
    if (types.empty())
        throw std::runtime_error("no such type: " + options.type);
    return types;
}

// The same on every target, whatever the standard library does.
uint64_t seed_of(uint64_t seed, const std::string &type, uint64_t number)
{
    uint64_t hash = 0xCBF29CE484222325u;
    for (const char c : type)
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3u;
    return Random(Random(seed).next() ^ hash).next() + number * 0xD1342543DE82EF95u;
}

bool passes(const std::function<void()> &run)
{
    alarm(kSecondsPerCase);
    try {
        run();
        return true;
    } catch (const Difference &difference) {
        std::printf("\nDIFFERENCE: %s\n%s\n", current_case, difference.text.c_str());
        return false;
    }
}

int run(const Options &options)
{
    Catalogue catalogue;
    if (!options.foreign.empty())
        read_proto_file(catalogue, options.foreign, true);
    for (const std::string &file : options.files)
        read_proto_file(catalogue, file, false);
    lay_out(catalogue);
    const auto types = chosen_types(options, catalogue);
    LibraryCodec library(options.library, options.sibling, catalogue);
    ModelCodec model;
    const auto cases = std::make_unique<Cases>(library, model);
    cases->verbose = options.verbose;
    current_cases = cases.get();
    catch_crashes();

    const uint64_t count = options.huge ? types.size() : options.cases;
    uint64_t done = 0;
    uint64_t differences = 0;
    for (; done < count && differences < options.limit; ++done) {
        const RecordType &type = *types[size_t(done % types.size())];
        const uint64_t number = options.first + done / types.size();
        std::snprintf(current_case, sizeof current_case,
                      options.huge ? "--huge --type %s"
                                   : "--type %s --seed %" PRIu64 " --first %" PRIu64 " --cases 1",
                      type.name.c_str(), options.seed, number);
        if (options.huge)
            differences += !passes([&] { cases->run_huge(type); });
        else
            differences +=
                !passes([&] { cases->run(type, seed_of(options.seed, type.name, number)); });
    }
    const int empty = options.huge ? 0 : cases->tally().print();
    if (options.every_class && empty)
        std::printf("\nDIFFERENCE: %d classes of cases did not come up\n", empty);
    std::printf("seed %" PRIu64 ": %" PRIu64 " cases, %" PRIu64 " comparisons, %" PRIu64
                " differences\n",
                options.seed, done, cases->comparisons(), differences);
    return differences || (options.every_class && empty) ? 1 : 0;
}

} // namespace

int main(int count, char **words)
{
    try {
        return run(read_options(count, words));
    } catch (const std::exception &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
}
