#include "apps/varnel/Losses.h"

#include <algorithm>
#include <map>
#include <set>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "apps/varnel/Steps.h"
#include "varnel/contracts/KzXmlAttributeData.h"
#include "varnel/contracts/KzXmlData.h"

namespace varnel::tool {
namespace {

/// Lists whose children are read whatever they are called, and what they are called when written.
const std::map<std::string_view, const char *> itemNames = {
    {"AREA", "EDGE"},
    {"AREALOADS", "AREALOAD"},
    {"ATTRIBUTES", "ATTRIBUTE"},
    {"BOUNDS", "EDGE"},
    {"CONSTRUCTIONSTATES", "CONSTRUCTIONSTATE"},
    {"FOUNDB", "FSPAN"},
    {"HOLES", "HOLE"},
    {"LBOUNDS", "LBOUND"},
    {"LINELOADS", "LINELOAD"},
    {"LOADCASES", "LOADCASE"},
    {"OBJECTSTATES", "OBJECTSTATE"},
    {"PBOUNDS", "PBOUND"},
    {"POINTLOADS", "POINTLOAD"},
    {"SUBSYSTEMS", "SUBSYSTEM"},
};

/// Items that are known by a key in both documents; all others by their place among those of their name.
struct Key {
    std::string_view list;
    const char *attribute;
    const char *missing;
};
constexpr Key keys[] = {
    {"MATERIALS", "NAME", ""},  {"SECTIONS", "NAME", ""},      {"MESHES", "NAME", ""},
    {"DESIGNS", "NUMBER", ""},  {"FOUNDATIONS", "NUMBER", ""}, {"GROUPS", "NAME", ""},
    {"SUBSYSTEMS", "NAME", ""}, {"LOADCASES", "NUMBER", "0"},  {"BOUNDS", "POS", "-1"},
};

/// Items whose number may change, where a second one of the same number goes into the first.
const std::set<std::string_view> mergedItems = {"BEAM", "ATTRIBUTE", "CONSTRUCTIONSTATE"};

constexpr const char *stateKinds[] = {"BEAM", "PLATE", "POINTBOUNDARY", "POINTLOAD", "LINELOAD"};
constexpr const char *memberKinds[] = {"PLATE",  "BEAM",      "HOLE",     "LBOUND",
                                       "PBOUND", "POINTLOAD", "LINELOAD", "AREALOAD"};

/// What lives on under another name in the same element; "@" stands before attributes. An empty owner means
/// any.
struct NewerForm {
    std::string_view owner;
    std::string_view older;
    std::string_view newer;
};
constexpr NewerForm newerForms[] = {
    {"SETTINGS", "AUTOLOAD", "@AUTOLOAD"},
    {"SETTINGS", "SYSBOUNDARY", "@SYSBOUNDARY"},
    {"SETTINGS", "OWNWEIGHT", "@OWNWEIGHT"},
    {"BEAM", "@TYPE", "@ETYPE"},
    {"BEAM", "START", "AREA"},
    {"BEAM", "END", "AREA"},
    {"BEAM", "MATERIAL", "CONCRETE"},
    {"PLATE", "@MESHSIZE", "@MESHSIZE-X"},
    {"PLATE", "FOUND", "@FOUND"},
    {"PLATE", "STEEL", "DESIGN"},
    {"PLATE", "MATERIAL", "CONCRETE"},
    {"ATTRIBUTE", "MATERIAL", "CONCRETE"},
    {"", "POLY", "AREA"},
    {"", "POSA", "LINE"},
    {"", "POSE", "LINE"},
    {"", "START", "LINE"},
    {"", "END", "LINE"},
    {"", "LINE", "CENTER"},
    {"", "@ANGLE", "LOCSYS-X"},
    {"", "LOCSYS-X", "@ANGLE"},
    {"", "LOCSYS-Y", "@ANGLE"},
    {"AREALOAD", "LOAD", "Z"},
    {"AREALOAD", "PX", "X"},
    {"AREALOAD", "PY", "Y"},
    {"AREALOAD", "PZ", "Z"},
    {"LOCA", "X", "@FOUND"},
    {"LOCA", "Y", "@FOUND"},
    {"LOCA", "Z", "@FOUND"},
    {"LOCE", "X", "@FOUND"},
    {"LOCE", "Y", "@FOUND"},
    {"LOCE", "Z", "@FOUND"},
};

/// What says nothing when it is zero or empty, and is then not written.
const std::set<std::pair<std::string_view, std::string_view>> meansNothing = {
    {"AREALOAD", "@TYPE"},      {"AREALOAD", "@TRANS"},      {"BEAM", "@LEFTGAP"},
    {"BEAM", "@RIGHTGAP"},      {"SUBSYSTEM", "BEAMS"},      {"EDGE", "STIFFD"},
    {"EDGE", "STIFFR"},         {"PBOUND", "STIFFD"},        {"PBOUND", "STIFFR"},
    {"LBOUND", "STIFFD"},       {"LBOUND", "STIFFR"},        {"POINTBOUNDARY", "STIFFD"},
    {"LINEBOUNDARY", "STIFFD"}, {"POINTBOUNDARY", "STIFFR"}, {"LINEBOUNDARY", "STIFFR"},
};

std::string attributeOf(const KzXmlData &element, const char *key, const char *missing) {
    const KzXmlAttributeData *attribute = element.findAttribute(key);
    return attribute ? attribute->getData() : missing;
}

bool isZero(const KzXmlAttributeData &attribute) {
    return attribute.getDouble() == 0.0;
}

/// Whether nothing but zeros stands in the element, or nothing at all.
bool isZero(const KzXmlData &element) {
    const auto zeroChild = [](const KzXmlData *child) {
        return child->getChildren().empty() &&
               child->getData().find_first_of("123456789n") == std::string::npos;
    };
    return element.getAttributes().empty() &&
           std::all_of(element.getChildren().begin(), element.getChildren().end(), zeroChild);
}

bool has(const KzXmlData &element, std::string_view item) {
    return item[0] == '@' ? element.findAttribute(item.substr(1)) != nullptr
                          : element.findChild(item) != nullptr;
}

bool livesOn(const KzXmlData &rewrittenOwner, std::string_view item) {
    return std::any_of(std::begin(newerForms), std::end(newerForms), [&](const NewerForm &form) {
        return form.older == item && (form.owner.empty() || form.owner == rewrittenOwner.getName()) &&
               has(rewrittenOwner, form.newer);
    });
}

/// The bedding of a part of a beam is written as a number and read as a vector: without one another number,
/// that of a bedding of zeros, comes back.
bool isLostValue(const KzXmlAttributeData &before, const KzXmlAttributeData &after, const KzXmlData &owner) {
    return (owner.getName() == "LOCA" || owner.getName() == "LOCE") && before.getKey() == "FOUND" &&
           before.getData() != after.getData();
}

/// Members of these kinds are read; those that are not there are told by the model.
bool isReadMember(const KzXmlData &element) {
    return element.getName() == "OBJECT" &&
           std::any_of(std::begin(memberKinds), std::end(memberKinds),
                       [&element](const char *kind) { return element.findAttribute(kind) != nullptr; });
}

/// Gives each child of a list the name under which its partner in the other document is found.
class Identities {
  public:
    explicit Identities(const KzXmlData &list) : list_(list) {
        const auto found = itemNames.find(list.getName());
        if (found != itemNames.end()) itemName_ = found->second;
    }

    std::string next(const KzXmlData &child) {
        const std::string name = itemName_.empty() ? child.getName() : itemName_;
        const KzXmlData *owner = list_.getParent();
        if (name == "AREALOAD" && owner && owner->getName() == "PLATE")
            return name + "=" + attributeOf(child, "LCTYPE", "2");
        for (const Key &key : keys)
            if (key.list == list_.getName())
                return name + "=" + attributeOf(child, key.attribute, key.missing);
        if (mergedItems.count(name) != 0) return place(name, attributeOf(child, "NUMBER", ""));
        if (name == "OBJECTSTATE")
            for (const char *kind : stateKinds)
                if (child.findAttribute(kind)) return place(name + kind, attributeOf(child, kind, ""));
        return place(name, "");
    }

  private:
    /// The place among those of the name; without a number, or with a new one, the next.
    std::string place(const std::string &name, const std::string &number) {
        int &count = counts_[name];
        if (number.empty()) return name + "#" + std::to_string(++count);
        const auto [entry, isNew] = places_.emplace(name + "=" + number, count + 1);
        if (isNew) ++count;
        return name + "#" + std::to_string(entry->second);
    }

    const KzXmlData &list_;
    std::string itemName_;
    std::unordered_map<std::string, int> counts_;
    std::unordered_map<std::string, int> places_;
};

class Comparison {
  public:
    std::vector<std::string> run(const KzXmlData &asRead, const KzXmlData &rewritten) {
        waiting_.push_back({&asRead, &rewritten, "/" + asRead.getName()});
        while (!waiting_.empty()) {
            const Pair pair = std::move(waiting_.back());
            waiting_.pop_back();
            if (pair.after) {
                compareAttributes(pair);
                compareChildren(pair);
            } else {
                lost_.push_back(pair.place);
            }
        }
        return std::move(lost_);
    }

  private:
    struct Pair {
        const KzXmlData *before;
        const KzXmlData *after;  // null: lost
        std::string place;
    };

    void compareAttributes(const Pair &pair) {
        const KzXmlData &after = *pair.after;
        for (const KzXmlAttributeData *attribute : pair.before->getAttributes()) {
            const KzXmlAttributeData *partner = after.findAttribute(attribute->getKey());
            if (partner && !isLostValue(*attribute, *partner, after)) continue;
            const std::string item = "@" + attribute->getKey();
            const bool nothing = isZero(*attribute) && meansNothing.count({after.getName(), item}) != 0;
            if (!nothing && !livesOn(after, item)) lost_.push_back(pair.place + "/" + item);
        }
    }

    /// Children wait with their partners for their own comparison, and those without one for their turn.
    void compareChildren(const Pair &pair) {
        if (pair.before->getChildren().empty()) return;
        std::unordered_map<std::string, const KzXmlData *> partners;
        Identities identities(*pair.after);
        for (const KzXmlData *child : pair.after->getChildren())
            partners.emplace(identities.next(*child), child);
        const std::size_t first = waiting_.size();
        Identities wanted(*pair.before);
        Steps steps(*pair.before);
        for (const KzXmlData *child : pair.before->getChildren()) {
            const auto partner = partners.find(wanted.next(*child));
            const std::string place = pair.place + steps.next(*child);
            if (isReadMember(*child)) continue;
            if (partner != partners.end())
                waiting_.push_back({child, partner->second, place});
            else if (!livesOn(*pair.after, child->getName()) && !isNothing(*child, *pair.after))
                waiting_.push_back({child, nullptr, place});
        }
        std::reverse(waiting_.begin() + static_cast<std::ptrdiff_t>(first), waiting_.end());
    }

    static bool isNothing(const KzXmlData &child, const KzXmlData &owner) {
        return meansNothing.count({owner.getName(), child.getName()}) != 0 && isZero(child);
    }

    std::vector<Pair> waiting_;
    std::vector<std::string> lost_;
};

}  // namespace

std::vector<std::string> losses(const KzXmlData &asRead, const KzXmlData &rewritten) {
    return Comparison().run(asRead, rewritten);
}

}  // namespace varnel::tool
