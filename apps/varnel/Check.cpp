#include <algorithm>
#include <iostream>
#include <map>

#include "apps/varnel/Commands.h"
#include "apps/varnel/Document.h"
#include "apps/varnel/Findings.h"
#include "apps/varnel/Losses.h"
#include "varnel/varnel.h"

namespace varnel::tool {
namespace {

using Lines = std::vector<std::string>;

/// The name of a subsystem, or nothing for the top one.
std::string placeOf(const Document &document, const VarnelSubSystem &node) {
    return &node == &document.root() ? "" : " in subsystem \"" + node.getName() + "\"";
}

/// `plate 3 "ceiling"`, with the name of its subsystem unless that is the top one.
std::string nameOf(const char *kind, int number, const std::string &name, const Document &document,
                   const VarnelSubSystem &node) {
    return kind + (" " + std::to_string(number)) + " \"" + name + "\"" + placeOf(document, node);
}

/// What is wrong with the outline of a plate, or nothing.
const char *faultOf(const VarnelArea *outline) {
    if (!outline || outline->getNumLines() == 0) return "has no outline";
    if (outline->isDegenerated()) return "has an outline without area, or with a side without length";
    if (!outline->isPlanar()) return "has an outline that is not plane";
    return nullptr;
}

Lines badOutlines(const Document &document) {
    Lines found;
    for (const VarnelSubSystem *node : subSystems(document.root()))
        for (const VarnelPlate *plate : node->getDatabase()->getPlates())
            if (const char *fault = faultOf(plate->getGeo()))
                found.push_back(nameOf("plate", plate->getNumber(), plate->getName(), document, *node) + " " +
                                fault);
    return found;
}

Lines loadsWithoutPlace(const Document &document) {
    Lines found;
    for (const VarnelSubSystem *node : subSystems(document.root())) {
        const Varnel &model = *node->getDatabase();
        for (const VarnelLineLoad *load : model.getLineLoads())
            if (!load->getLine())
                found.push_back(nameOf("line load", load->getNumber(), load->getName(), document, *node) +
                                " has no line");
        for (const VarnelAreaLoad *load : model.getAreaLoads())
            if (!load->getArea())
                found.push_back(nameOf("area load", load->getNumber(), load->getName(), document, *node) +
                                " has no outline");
    }
    return found;
}

Lines namelessLoadcases(const Document &document) {
    std::map<int, int> loads;  // by number of the case
    const auto count = [&loads](const auto &list) {
        for (const auto *load : list)
            if (load->getLoadcase() && load->getLoadcase()->getName().empty())
                ++loads[load->getLoadcase()->getNumber()];
    };
    for (const VarnelSubSystem *node : subSystems(document.root())) {
        const Varnel &model = *node->getDatabase();
        count(model.getPointLoads());
        count(model.getLineLoads());
        count(model.getAreaLoads());
        for (const VarnelPlate *plate : model.getPlates()) count(plate->getAreaLoads());
    }
    Lines found;
    for (const auto &[number, size] : loads)
        found.push_back("load case " + std::to_string(number) +
                        " has no name; loads in it: " + std::to_string(size));
    return found;
}

void append(Lines &lines, Lines more) {
    std::move(more.begin(), more.end(), std::back_inserter(lines));
}

Lines findingsOf(Document &document) {
    try {
        document.build();
    } catch (const Tools::Error &error) {
        return {error.what()};  // what was built by then is no model to judge
    }
    Lines found;
    append(found, badOutlines(document));
    append(found, missingMembers(document));
    append(found, loadsWithoutPlace(document));
    append(found, namelessLoadcases(document));
    document.bringUpToDate();
    append(found, lostAtSaving(document));
    return found;
}

}  // namespace

Lines lostAtSaving(const Document &document) {
    Lines found = losses(document.asRead(), document.toBeWritten());
    for (std::string &place : found) place.insert(0, "lost when saved: ");
    return found;
}

Lines missingMembers(const Document &document) {
    Lines found;
    for (const VarnelSubSystem *node : subSystems(document.root())) {
        for (const VarnelObjectGroup *group : node->getDatabase()->getObjectGroups()) {
            const auto &members = group->getObjects();
            const auto missing = std::count(members.begin(), members.end(), nullptr);
            if (missing == 0) continue;
            found.push_back("group \"" + group->getName() + "\"" + placeOf(document, *node) +
                            " has members that are not there: " + std::to_string(missing) + " of " +
                            std::to_string(members.size()));
        }
    }
    return found;
}

int check(const std::string &path) {
    Document document(path);
    const Lines found = findingsOf(document);
    for (const std::string &line : found) std::cout << oneLine(line) << '\n';
    return found.empty() ? Clean : Findings;
}

}  // namespace varnel::tool
