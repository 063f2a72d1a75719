// SPDX-License-Identifier: MIT
// Another Protocol Buffers library, which reads the same .proto files, as a second opinion on what
// a content is on the wire.

#pragma once

#include "tests/catalogue/content.hpp"
#include "tests/support/bytes.hpp"

#include <google/protobuf/message.h>
#include <memory>
#include <string>

namespace catalogue {

class Referee {
public:
    // Throws when the .proto files cannot be read.
    Referee();
    ~Referee();

    // How the type's message differs from its structure: in the number of fields, a name, a kind or
    // a nested type. Empty when it does not.
    std::string disagreement(const RecordType &type) const;

    // How many messages there are in all files.
    size_t message_count() const;

    test::Bytes encode(const Content &content);

    // A message of the type with nothing in it, or with what the content says. It must not outlive
    // the referee.
    std::unique_ptr<google::protobuf::Message> message(const RecordType &type);
    std::unique_ptr<google::protobuf::Message> message(const Content &content);

private:
    struct Schema;
    std::unique_ptr<Schema> schema_;
};

// The file of vectors as it should be.
std::string vectors_text(Referee &referee);

} // namespace catalogue
