// "LOADCASES" with "LOADCASE".

#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/exchange/ElementReading.h"
#include "varnel/exchange/VarnelExchangeXml.h"
#include "varnel/process/VarnelManager.h"

/// Load cases belong to the last calculation: after a change the element is empty, and the cases come back
/// through the loads that name them.
void VarnelExchangeXml::updateLoadcases(VarnelManager *manager) {
    open("LOADCASES");
    flush();
    if (manager && !manager->systemChanged() && !manager->loadChanged()) {
        if (const SysBase::Loadcase *current = manager->getCurrentLoadcase())
            setAttribute("CURRENT", current->getNumber());
        for (SysBase::Loadcase *loadcase : manager->getLoadcases()) {
            openToAttribute("LOADCASE", "NUMBER", loadcase->getNumber());
            updateOneLoadcase(manager, loadcase);
            close();
        }
    }
    close();
}

void VarnelExchangeXml::updateOneLoadcase(VarnelManager *, SysBase::Loadcase *loadcase) {
    if (!loadcase) return;
    setAttribute("NAME", loadcase->getName());
    setAttribute("TYPE", loadcase->getType());
    setAttribute("OWN", loadcase->isOwnWeight());
    setAttribute("EIGEN", loadcase->doCalculateEigen());
    setAttribute("PRIMARY", loadcase->isPrimary());
}

void VarnelExchangeXml::createLoadcases(KzXmlData *element, VarnelManager *manager) {
    if (!element || !manager) return;
    varnel::eachChild(element, [this, manager](KzXmlData *child) { createOneLoadcase(child, manager); });
    varnel::ifInt(element, "CURRENT", [manager](int number) { manager->setCurrentLoadcase(number); });
}

SysBase::Loadcase *VarnelExchangeXml::createOneLoadcase(KzXmlData *element, VarnelManager *manager) {
    if (!element || !manager) return nullptr;
    SysBase::Loadcase *loadcase = manager->giveLoadcaseToNumber(varnel::readInt(element, "NUMBER", 0), true);
    // Without a name the other values do not count: the case keeps what it had.
    const KzXmlAttributeData *name = element->findAttribute("NAME");
    if (!loadcase || !name) return loadcase;
    loadcase->setName(name->getData());
    loadcase->setOwnWeight(varnel::readInt(element, "OWN", 0) != 0);
    loadcase->setType(static_cast<SysBase::LoadcaseData::Type>(varnel::readInt(element, "TYPE", 1)));
    loadcase->enableCalculateEigen(varnel::readInt(element, "EIGEN", 0) != 0);
    loadcase->setPrimary(varnel::readInt(element, "PRIMARY", 1) != 0);
    return loadcase;
}
