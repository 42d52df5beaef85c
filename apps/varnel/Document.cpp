#include "apps/varnel/Document.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <system_error>
#include <utility>

#include "apps/varnel/Steps.h"
#include "varnel/contracts/KzMaterialHandler.h"
#include "varnel/contracts/KzMaterialManager.h"
#include "varnel/contracts/Tools/Error.h"
#include "varnel/exchange/VarnelExchangeXml.h"
#include "varnel/members/VarnelGap.h"
#include "varnel/model/Varnel.h"
#include "varnel/model/VarnelSubSystem.h"

namespace varnel::tool {
namespace {

/// A document without results, which is written by save() alone.
class Exchange : public VarnelExchangeXml {
  public:
    void fileOutput(const Tools::Path &) override {}
    void updateResults(VarnelManager *) override {}
    void updateOneLineBoundaryResult(Varnel *, VarnelLineBoundaryData *) override {}
};

[[noreturn]] void fail(const std::string &what, int error) {
    throw Failure(error == 0 ? what : what + ": " + std::generic_category().message(error));
}

std::string contentOf(const std::string &path) {
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored)) throw Failure("is a directory");
    errno = 0;
    std::ifstream file(path, std::ios_base::in | std::ios_base::binary);
    if (!file.is_open()) fail("cannot be opened", errno);
    std::ostringstream content;
    content << file.rdbuf();
    if (file.bad() || content.bad()) fail("cannot be read", errno);
    return content.str();
}

bool isMaterialReference(const KzXmlData &element) {
    const std::string &name = element.getName();
    const std::string owner = element.getParent() ? element.getParent()->getName() : std::string();
    if (name == "CONCRETE") return owner == "PLATE" || owner == "ATTRIBUTE";  // a beam does without
    if (name == "MATERIAL") return owner == "PLATE" || owner == "ATTRIBUTE" || owner == "BEAM";
    return name == "STEEL" && (owner == "DESIGN" || owner == "PLATE");
}

bool isKnownMaterial(const KzXmlData &reference, KzMaterialManager &project) {
    const std::string &name = reference.getData();
    KzMaterialHandler &stock = *KzMaterialHandler::get();
    if (reference.getName() == "CONCRETE")
        return project.findConcreteToName(name) || stock.findConcreteToName(name);
    if (reference.getName() == "MATERIAL")
        return project.findMaterialToName(name) || stock.findMaterialToName(name);
    if (name == "B500N" || name == "B500H") return true;  // older names of variants of B500M
    return project.findReinforcementToName(name) || stock.findReinforcementToName(name);
}

}  // namespace

std::string oneLine(const std::string &text) {
    std::string line;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '\n') {
            line += "\\n";
        } else if (byte < 0x20 || byte == 0x7f) {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\x%02x", byte);
            line += escape;
        } else {
            line += c;
        }
    }
    return line;
}

VarnelExchange *Factory::giveExchange() const {
    return new Exchange;
}

VarnelErrorHandler *Factory::giveErrorHandler() const {
    if (!errorHandler_) errorHandler_ = std::make_unique<SilentErrorHandler>();
    return errorHandler_.get();
}

Document::Document(const std::string &path)
    : manager_(std::make_unique<VarnelManager>(&factory_)),
      exchange_(static_cast<VarnelExchangeXml *>(manager_->getExchange())) {
    std::istringstream content(contentOf(path));
    if (!asRead_.buildOfStream(content)) throw Failure("cannot be read");
    if (asRead_.getName().empty()) throw Failure("is empty");
    if (asRead_.getName() != "VARNEL")
        throw Failure("is no project document: its root is \"" + asRead_.getName() + "\", not \"VARNEL\"");
    content.clear();
    content.seekg(0);
    exchange_->getTree()->buildOfStream(content);
    manager_->setProjectPath(path);
}

Document::~Document() = default;

void Document::build() {
    try {
        exchange_->get(manager_.get());
    } catch (const Tools::Error &error) {
        throw Tools::Error(error.what() + unknownMaterials());
    }
}

void Document::bringUpToDate() {
    // The first run numbers the objects, which counts as a change; the second one then finds the model
    // unchanged and keeps the load cases.
    const std::string path = manager_->getProjectPath().path();
    manager_->output(path.c_str());
    markUnchanged();
    manager_->output(path.c_str());
}

void Document::save(const std::string &path) {
    errno = 0;
    exchange_->saveProjectSettings(path);
    if (!exchange_->lastOutputOk()) fail("cannot write " + path, errno);
}

const KzXmlData &Document::toBeWritten() const {
    return *exchange_->getTree()->getRoot();
}

/// ": "C99" at /VARNEL/..., ...": each material that is neither in the project nor in stock, and its first
/// place.
std::string Document::unknownMaterials() const {
    std::string found;
    std::set<std::string> names;
    std::vector<std::pair<const KzXmlData *, std::string>> waiting{{&asRead(), "/" + asRead().getName()}};
    while (!waiting.empty()) {
        const auto [element, place] = std::move(waiting.back());
        waiting.pop_back();
        const auto first = static_cast<std::ptrdiff_t>(waiting.size());
        Steps steps(*element);
        for (const KzXmlData *child : element->getChildren())
            waiting.emplace_back(child, place + steps.next(*child));
        std::reverse(waiting.begin() + first, waiting.end());
        if (!isMaterialReference(*element) || isKnownMaterial(*element, *manager_->getMaterialManager()))
            continue;
        if (!names.insert(element->getData()).second) continue;
        found += (found.empty() ? ": \"" : ", \"") + element->getData() + "\" at " + place;
    }
    return found;
}

void Document::markUnchanged() {
    manager_->setSystemChanged(false);
    manager_->setLoadChanged(false);
    for (const VarnelSubSystem *node : subSystems(root()))
        for (VarnelGap *gap : node->getDatabase()->getGaps()) gap->setChanged(false);  // left out above
}

std::vector<const VarnelSubSystem *> subSystems(const VarnelSubSystem &root) {
    std::vector<const VarnelSubSystem *> found;
    std::vector<const VarnelSubSystem *> waiting{&root};
    while (!waiting.empty()) {
        const VarnelSubSystem *node = waiting.back();
        waiting.pop_back();
        found.push_back(node);
        waiting.insert(waiting.end(), node->getChildren().rbegin(), node->getChildren().rend());
    }
    return found;
}

}  // namespace varnel::tool
