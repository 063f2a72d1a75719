// SPDX-License-Identifier: MIT
// The schema that the inspector writes, read by the compiler that the files of this project are
// for: it says the same as they do.
#include "tools/core/views.hpp"

#include <google/protobuf/compiler/importer.h>
#include <google/protobuf/compiler/parser.h>
#include <google/protobuf/descriptor.pb.h>
#include <google/protobuf/io/tokenizer.h>
#include <google/protobuf/io/zero_copy_stream_impl_lite.h>
#include <gtest/gtest.h>

namespace inspect {

namespace {

namespace pb = google::protobuf;

class Complaints : public pb::io::ErrorCollector, public pb::compiler::MultiFileErrorCollector {
public:
    void AddError(int line, int column, const std::string &message) override
    {
        ADD_FAILURE() << line + 1 << ":" << column + 1 << ": " << message;
    }
    void AddError(const std::string &file, int line, int column,
                  const std::string &message) override
    {
        ADD_FAILURE() << file << ":" << line + 1 << ":" << column + 1 << ": " << message;
    }
};

// All files of the project.
const pb::DescriptorPool &original()
{
    static Complaints complaints;
    static pb::compiler::DiskSourceTree tree;
    static pb::compiler::Importer importer(&tree, &complaints);
    static const bool is_read = [] {
        tree.MapPath("", TARN_SOURCE_DIR);
        for (const RecordType &type : every_type())
            if (!importer.Import(std::string(type.file) + ".proto"))
                return false;
        return true;
    }();
    EXPECT_TRUE(is_read);
    return *importer.pool();
}

const pb::FileDescriptor *compiled(const RecordType *type, pb::DescriptorPool &pool)
{
    std::string text;
    write_schema(type, [&text](std::string_view part) { text += part; });
    Complaints complaints;
    pb::io::ArrayInputStream stream(text.data(), static_cast<int>(text.size()));
    pb::io::Tokenizer tokens(&stream, &complaints);
    pb::compiler::Parser parser;
    parser.RecordErrorsTo(&complaints);
    pb::FileDescriptorProto file;
    file.set_name("schema.proto");
    EXPECT_TRUE(parser.Parse(&tokens, &file)) << text;
    return pool.BuildFile(file);
}

// Returns how many messages the file has, which are as they are in the project's files.
int compare(const pb::FileDescriptor &file)
{
    EXPECT_EQ(file.syntax(), pb::FileDescriptor::SYNTAX_PROTO2);
    EXPECT_EQ(file.package(), "tarn");
    for (int i = 0; i < file.message_type_count(); i++) {
        const std::string &name = file.message_type(i)->full_name();
        const pb::Descriptor *const wanted = original().FindMessageTypeByName(name);
        EXPECT_NE(wanted, nullptr) << name;
        if (wanted) {
            EXPECT_EQ(file.message_type(i)->DebugString(), wanted->DebugString());
        }
    }
    return file.message_type_count();
}

TEST(schema_text, says_what_the_schema_says)
{
    pb::DescriptorPool pool;
    const pb::FileDescriptor *const file = compiled(nullptr, pool);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(compare(*file), static_cast<int>(every_type().size()));
}

TEST(schema_text, says_the_same_of_each_type)
{
    for (const RecordType &type : every_type()) {
        pb::DescriptorPool pool;
        const pb::FileDescriptor *const file = compiled(&type, pool);
        ASSERT_NE(file, nullptr) << type.name;
        EXPECT_EQ(compare(*file), static_cast<int>(with_nested(type).size())) << type.name;
    }
}

// Comments are part of the schema, too; the compiler keeps them beside what they are about.
TEST(schema_text, has_the_comments)
{
    std::string text;
    write_schema(nullptr, [&text](std::string_view part) { text += part; });
    std::string words;
    for (const char c : text)
        if (c != '\n' && c != '/' && c != ' ')
            words += c;
    for (const RecordType &type : every_type()) {
        std::string comment;
        for (const char c : type.comment)
            if (c != '/' && c != ' ')
                comment += c;
        EXPECT_NE(words.find(comment), std::string::npos) << type.name;
    }
}

} // namespace

} // namespace inspect
