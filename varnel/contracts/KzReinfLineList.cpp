#include "varnel/contracts/KzReinfLineList.h"

#include <algorithm>

#include "varnel/contracts/KeyedElements.h"
#include "varnel/contracts/KzMaterialReinforcement.h"
#include "varnel/contracts/KzReinfLine.h"
#include "varnel/contracts/KzReinfLineUser.h"
#include "varnel/contracts/KzXmlDataUtil.h"
#include "varnel/contracts/KzXmlTree.h"
#include "varnel/contracts/Lists.h"
#include "varnel/contracts/SDBSectionDatabase.h"
#include "varnel/contracts/SDBSectionLine.h"
#include "varnel/contracts/SDBSectionManager.h"
#include "varnel/contracts/SDBSectionUser.h"

namespace {

constexpr char lineTag[] = "REINFLINE";
constexpr char numberKey[] = "NUMBER";
constexpr char nameKey[] = "NAME";
constexpr char sectionKey[] = "SECTION";

SDBSectionLine *findSection(const SDBSectionManager *sections, const std::string &name) {
    return sections ? dynamic_cast<SDBSectionLine *>(sections->findSectionToName(name)) : nullptr;
}

}  // namespace

/// Keeps the sections of the lines alive.
class KzReinfLineList::SectionGuard : public SDBSectionUser {
  public:
    explicit SectionGuard(const KzReinfLineList &list) : list_(list) {}

    bool checkUsed(const SDBSection *section) override { return list_.usesSection(section); }

  private:
    const KzReinfLineList &list_;
};

KzReinfLineList::KzReinfLineList(SDBSectionManager *sections)
    : sections_(sections), guard_(std::make_unique<SectionGuard>(*this)) {
    if (!sections_) return;
    sectionsLife_ = sections_->lifetime();
    sections_->addUser(guard_.get());
}

KzReinfLineList::~KzReinfLineList() {
    if (SDBSectionManager *alive = sections()) alive->removeUser(guard_.get());
    numbers_.clear();
    varnel::deleteAll(lines_);
}

bool KzReinfLineList::checkUsed(const KzMaterial *material) {
    return material && std::any_of(lines_.begin(), lines_.end(), [material](const KzReinfLine *line) {
               return line->getReinforcement() == material;
           });
}

KzReinfLine *KzReinfLineList::findBeamReinf(int number) const {
    return numbers_.find(number);
}

void KzReinfLineList::add(KzReinfLine *line) {
    if (!line || line->list_) return;
    lines_.push_back(line);
    line->list_ = this;
    line->sequence_ = ++lastSequence_;
    numbers_.file(line->number_, line->sequence_, line);
}

bool KzReinfLineList::remove(KzReinfLine *line) {
    if (!line || line->list_ != this || users_.use(line)) return false;
    lines_.erase(std::find(lines_.begin(), lines_.end(), line));
    numbers_.drop(line->number_, line->sequence_);
    delete line;
    return true;
}

void KzReinfLineList::importXml(KzXmlData *element) {
    if (!element) return;
    for (const KzXmlData *child : element->getChildren())
        if (child->getName() == lineTag) importOneLine(child);
}

void KzReinfLineList::importOneLine(const KzXmlData *element) {
    int number = 0;
    if (!KzXmlDataUtil::readValToAttribute(element, numberKey, number)) return;
    KzReinfLine *line = findBeamReinf(number);
    if (!line) {
        line = new KzReinfLine(number, std::string());
        add(line);
    }
    std::string name = line->getName();
    KzXmlDataUtil::readValToAttribute(element, nameKey, name);
    line->setName(name);
    std::string sectionName;
    if (!KzXmlDataUtil::readValToAttribute(element, sectionKey, sectionName)) return;
    SDBSectionLine *section = findSection(sections(), sectionName);
    line->setSection(section ? section : findSection(SDBSectionDatabase::get(), sectionName));
}

void KzReinfLineList::exportXml(KzXmlTree *tree) {
    KzXmlData *list = tree ? tree->getCursor() : nullptr;
    if (!list) return;
    varnel::KeyedElements elements(list, lineTag, numberKey);
    for (const KzReinfLine *line : lines_) {
        KzXmlData *element = elements.give(line->getNumber());
        if (!element) continue;
        element->setAttribute(nameKey, line->getName());
        const SDBSectionLine *section = line->getSection();
        if (section)
            element->setAttribute(sectionKey, section->getName());
        else if (element->findAttribute(sectionKey))
            element->setAttribute(sectionKey, "");
    }
    elements.dropOthers();
}

/// Null also once the sections are dead.
SDBSectionManager *KzReinfLineList::sections() const {
    return sectionsLife_.expired() ? nullptr : sections_;
}

bool KzReinfLineList::usesSection(const SDBSection *section) const {
    return section && std::any_of(lines_.begin(), lines_.end(), [section](const KzReinfLine *line) {
               return line->getSection() == section;
           });
}
