#ifndef VARNEL_TESTS_SUPPORT_XMLTEXT_H
#define VARNEL_TESTS_SUPPORT_XMLTEXT_H

#include <sstream>
#include <string>

#include "varnel/contracts/KzXmlTree.h"

namespace testsupport {

/// The document as it is written.
inline std::string textOf(const KzXmlTree &tree, bool indent = true) {
    std::ostringstream stream;
    tree.putToStream(stream, indent);
    return stream.str();
}

/// Reads a document from a text; false if the stream cannot be read.
inline bool build(KzXmlTree &tree, const std::string &text) {
    std::istringstream stream(text);
    return tree.buildOfStream(stream);
}

}  // namespace testsupport

#endif
