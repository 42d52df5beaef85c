#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

#include "varnel/contracts/KzXmlTree.h"
#include "varnel/contracts/Tools/Error.h"

namespace {

std::string textOf(const KzXmlTree &tree, bool indent) {
    std::ostringstream stream;
    tree.putToStream(stream, indent);
    return stream.str();
}

/// What was written must be readable and must be written the same again.
void checkRoundTrip(const KzXmlTree &tree, bool indent) {
    const std::string first = textOf(tree, indent);
    std::istringstream stream(first);
    KzXmlTree again("AGAIN");
    if (!again.buildOfStream(stream) || textOf(again, indent) != first) std::abort();
}

}  // namespace

/// Any bytes are a document or an error that leaves the tree as it was.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    KzXmlTree tree("EARLIER");
    const KzXmlData *cursor = tree.open("CURSOR");
    std::istringstream stream(std::string(reinterpret_cast<const char *>(data), size));
    try {
        if (!tree.buildOfStream(stream)) std::abort();
    } catch (const Tools::Error &error) {
        if (std::string(error.what()).rfind("line ", 0) != 0) std::abort();
        if (tree.getCursor() != cursor || tree.getName() != "EARLIER") std::abort();
        return 0;
    }
    if (tree.getName().empty()) return 0;
    checkRoundTrip(tree, true);
    checkRoundTrip(tree, false);
    return 0;
}
