#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

#include "tests/support/DamagedDocument.h"
#include "varnel/varnel.h"

namespace {

/// A project whose services say nothing.
class Factory : public VarnelFactory {
    VarnelErrorHandler *giveErrorHandler() const override { return nullptr; }
};

/// Reads a document into a fresh project, numbers it and writes it again. Empty for a document that is
/// refused.
std::string readAndWrite(const std::string &text) {
    Factory factory;
    VarnelManager manager(&factory);
    auto &exchange = static_cast<VarnelExchangeXml &>(*manager.getExchange());
    std::istringstream stream(text);
    try {
        exchange.getTree()->buildOfStream(stream);
        exchange.get(&manager);
    } catch (const Tools::Error &) {
        return {};
    }
    manager.setup();
    manager.getDatabase()->mergePointsInVarnelObjects();
    exchange.updateSystem(&manager);
    exchange.updateResults(&manager);
    std::ostringstream written;
    exchange.getTree()->putToStream(written, true);
    return written.str();
}

}  // namespace

/// Any bytes become a model or an error.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string written = readAndWrite(std::string(reinterpret_cast<const char *>(data), size));
    if (!written.empty()) readAndWrite(written);
    return 0;
}

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t most);

/// Mostly harms the elements and values of a document, now and then its bytes.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t most,
                                               unsigned seed) {
    varnel::test::Random random(seed);
    if (random.oneIn(8)) return LLVMFuzzerMutate(data, size, most);
    KzXmlTree tree("VARNEL");
    std::istringstream stream(std::string(reinterpret_cast<const char *>(data), size));
    try {
        tree.buildOfStream(stream);
    } catch (const Tools::Error &) {
        return LLVMFuzzerMutate(data, size, most);
    }
    varnel::test::DamagedDocument document(tree.getRoot());
    document.damage(random);
    const std::string text = document.text();
    if (text.size() > most) return LLVMFuzzerMutate(data, size, most);
    std::copy(text.begin(), text.end(), data);
    return text.size();
}
