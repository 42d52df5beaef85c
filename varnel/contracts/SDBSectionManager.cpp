#include "varnel/contracts/SDBSectionManager.h"

#include "varnel/contracts/SDBSection.h"
#include "varnel/contracts/SDBSectionUser.h"

SDBSectionManager::SDBSectionManager() : life_(std::make_shared<char>()) {}

SDBSectionManager::~SDBSectionManager() = default;

SDBSection *SDBSectionManager::findSectionToName(const std::string &name) const {
    return sections_.find(name);
}

void SDBSectionManager::add(SDBSection *section) {
    sections_.add(section);
}

bool SDBSectionManager::remove(SDBSection *section) {
    if (!sections_.owns(section) || users_.use(section) || !sections_.take(section)) return false;
    delete section;
    return true;
}

void SDBSectionManager::removeNotUserDefined() {
    sections_.deleteIf(
        [this](const SDBSection *section) { return !section->isUserDefined() && !users_.use(section); });
}
