#include "varnel/contracts/Found/FoundationManager.h"

#include <limits>
#include <memory>

#include "varnel/contracts/Found/Foundation.h"
#include "varnel/contracts/Found/FoundationUser.h"
#include "varnel/contracts/KeyedElements.h"
#include "varnel/contracts/KzXmlDataUtil.h"
#include "varnel/contracts/KzXmlTree.h"

namespace Found {

namespace {

constexpr char listTag[] = "FOUNDATIONS";
constexpr char foundationTag[] = "FOUNDATION";
constexpr char numberKey[] = "NUMBER";
constexpr char nameKey[] = "NAME";
constexpr char lineTag[] = "DISP";

std::string defaultName(int number) {
    return "F" + std::to_string(number);
}

void writeFoundation(const Foundation &foundation, KzXmlData *element) {
    element->setAttribute(nameKey, foundation.getName());
    KzVector3D line;
    foundation.getDispLine(line);
    KzXmlData *child = varnel::giveChild(*element, lineTag);
    varnel::giveChild(*child, "X")->setData(line.getX());
    varnel::giveChild(*child, "Y")->setData(line.getY());
    varnel::giveChild(*child, "Z")->setData(line.getZ());
}

}  // namespace

FoundationManager::FoundationManager() = default;

FoundationManager::~FoundationManager() {
    numbers_.clear();
    lines_.clear();
    for (Foundation *foundation : foundations_.items()) foundation->manager_ = nullptr;
}

Foundation *FoundationManager::findFoundation(const std::string &name) const {
    return foundations_.find(name);
}

Foundation *FoundationManager::findFoundation(int number) const {
    const auto place = numbers_.lower_bound({number, 0});
    return place != numbers_.end() && place->first.first == number ? place->second : nullptr;
}

Foundation *FoundationManager::giveFoundation(const Foundation &wanted, bool create) {
    Foundation *foundation = lines_.find(wanted.dispLine_);
    if (foundation || !create) return foundation;
    const int number = nextNumber();
    foundation = new Foundation(number, defaultName(number), wanted.dispLine_);
    add(foundation);
    return foundation;
}

void FoundationManager::add(Foundation *foundation) {
    if (!foundations_.add(foundation)) return;
    foundation->manager_ = this;
    numbers_.emplace(std::make_pair(foundation->number_, foundation->name_.sequence()), foundation);
    fileLine(foundation);
}

bool FoundationManager::remove(Foundation *foundation) {
    if (!foundations_.owns(foundation) || users_.use(foundation)) return false;
    dropLine(*foundation);
    numbers_.erase({foundation->number_, foundation->name_.sequence()});
    foundations_.take(foundation);
    foundation->manager_ = nullptr;
    delete foundation;
    return true;
}

void FoundationManager::createFromXml(KzXmlData *root) {
    const KzXmlData *list = root ? root->findChild(listTag) : nullptr;
    if (!list) return;
    for (const KzXmlData *element : list->getChildren())
        if (element->getName() == foundationTag) createOneFoundation(element);
}

void FoundationManager::createOneFoundation(const KzXmlData *element) {
    int number = 0;
    if (!KzXmlDataUtil::readValToAttribute(element, numberKey, number)) return;
    Foundation *foundation = findFoundation(number);
    if (!foundation) {
        foundation = new Foundation(number, defaultName(number), KzVector3D());
        add(foundation);
    }
    std::string name = foundation->getName();
    KzXmlDataUtil::readValToAttribute(element, nameKey, name);
    foundation->setName(name);
    double x = foundation->dispLine_.getX();
    double y = foundation->dispLine_.getY();
    double z = foundation->dispLine_.getZ();
    KzXmlDataUtil::getVector(element->findChild(lineTag), x, y, z);
    foundation->setDispLine(KzVector3D(x, y, z));
}

void FoundationManager::updateXml(KzXmlTree *tree) const {
    if (!tree) return;
    KzXmlData *list = varnel::giveChild(*tree->getRoot(), listTag);
    varnel::KeyedElements elements(list, foundationTag, numberKey);
    for (const Foundation *foundation : foundations_.items())
        if (KzXmlData *element = elements.give(foundation->number_)) writeFoundation(*foundation, element);
    elements.dropOthers();
}

int FoundationManager::nextNumber() const {
    if (numbers_.empty()) return 1;
    const int highest = numbers_.rbegin()->first.first;
    if (highest < 1) return 1;
    return highest < std::numeric_limits<int>::max() ? highest + 1 : highest;
}

/// A line with a NaN equals none and is not filed.
void FoundationManager::fileLine(Foundation *foundation) {
    const KzVector3D &line = foundation->dispLine_;
    if (line == line) lines_.file(line, foundation->name_.sequence(), foundation);
}

void FoundationManager::dropLine(const Foundation &foundation) {
    lines_.drop(foundation.dispLine_, foundation.name_.sequence());
}

}  // namespace Found
