// SPDX-License-Identifier: MIT
// The schema compiler, a plugin of protoc: all .proto files of the set go in at once, the committed
// record files, tables and lists come out. See generator/regenerate.

#include "generator/output.hpp"

#include <google/protobuf/compiler/code_generator.h>
#include <google/protobuf/compiler/plugin.h>
#include <google/protobuf/io/zero_copy_stream.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <memory>
#include <stdexcept>

namespace generator {

namespace {

namespace pb = google::protobuf;

void write_file(pb::compiler::GeneratorContext &context, const std::string &path,
                const std::string &text)
{
    const std::unique_ptr<pb::io::ZeroCopyOutputStream> stream(context.Open(path));
    size_t written = 0;
    void *space;
    int size;
    while (written < text.size() && stream->Next(&space, &size)) {
        const size_t part = std::min(static_cast<size_t>(size), text.size() - written);
        std::memcpy(space, text.data() + written, part);
        written += part;
        stream->BackUp(size - static_cast<int>(part));
    }
    if (written < text.size())
        throw std::runtime_error("cannot write " + path);
}

// The tables of all records need the embedded ones before those that embed them, across files, too.
std::vector<const pb::FileDescriptor *>
imports_first(const std::vector<const pb::FileDescriptor *> &files)
{
    std::vector<const pb::FileDescriptor *> ordered;
    std::function<void(const pb::FileDescriptor *)> place = [&](const pb::FileDescriptor *file) {
        if (std::find(ordered.begin(), ordered.end(), file) != ordered.end())
            return;
        for (int i = 0; i < file->dependency_count(); i++)
            place(file->dependency(i));
        ordered.push_back(file);
    };
    for (const pb::FileDescriptor *file : files)
        place(file);
    return ordered;
}

class RecordGenerator : public pb::compiler::CodeGenerator {
public:
    bool Generate(const pb::FileDescriptor *, const std::string &, pb::compiler::GeneratorContext *,
                  std::string *) const override
    {
        return false; // everything is done by GenerateAll
    }

    bool GenerateAll(const std::vector<const pb::FileDescriptor *> &descriptors,
                     const std::string &, pb::compiler::GeneratorContext *context,
                     std::string *error) const override
    {
        try {
            generate(descriptors, *context);
        } catch (const std::exception &problem) {
            *error = problem.what();
            return false;
        }
        return true;
    }

private:
    static void generate(const std::vector<const pb::FileDescriptor *> &descriptors,
                         pb::compiler::GeneratorContext &context)
    {
        std::vector<File> files;
        File foreign;
        for (const pb::FileDescriptor *descriptor : imports_first(descriptors)) {
            // The types of the sibling library have headers and operations of their own.
            if (descriptor->name() == "foreign/foreign.proto")
                foreign = read_file(*descriptor);
            else
                files.push_back(read_file(*descriptor));
        }
        for (const File &file : files) {
            write_file(context, file.path + ".h", c_header(file));
            write_file(context, file.path + ".hpp", field_lists(file));
            write_file(context, file.path + ".cpp", operations(file));
        }
        write_file(context, "ethsw_mgmt/ethsw_mgmt.h", umbrella_header(files));
        write_file(context, "abi/exports.txt", exported_names(files));
        for (const Target &target : kTargets)
            write_file(context, std::string("abi/") + target.name + ".def",
                       abi_table(every_record(files, foreign), target));
        write_file(context, "tests/catalogue/record_types.cpp", test_tables(files));
        for (const File &file : files)
            write_file(context, operations_header_path(file), operations_header(file));
        write_file(context, operations_header_path(foreign), operations_header(foreign));
        write_file(context, "cxx/ethsw_mgmt.hpp", operations_umbrella(files));
        write_file(context, "tests/cxx/record_types.cpp", operations_test_rows(files));
        write_file(context, "tools/core/record_types.cpp", inspector_tables(files, foreign));
    }
};

} // namespace

} // namespace generator

int main(int argc, char **argv)
{
    const generator::RecordGenerator record_generator;
    return google::protobuf::compiler::PluginMain(argc, argv, &record_generator);
}
