// Reader and writer of SECTIONS/SECTION.

#include "varnel/contracts/SDBSectionVisitorXml.h"

#include <string>

#include "varnel/contracts/KeyedElements.h"
#include "varnel/contracts/KzXmlDataUtil.h"
#include "varnel/contracts/KzXmlTree.h"
#include "varnel/contracts/SDBSectionLine.h"
#include "varnel/contracts/SDBSectionManager.h"

namespace {

constexpr char listTag[] = "SECTIONS";
constexpr char sectionTag[] = "SECTION";
constexpr char nameKey[] = "NAME";
constexpr char kindKey[] = "KIND";
constexpr char widthKey[] = "B";
constexpr char heightKey[] = "H";
constexpr char diameterKey[] = "D";
constexpr char areaKey[] = "AREA";
constexpr char userKey[] = "USER";
constexpr char rectangle[] = "RECT";
constexpr char circle[] = "CIRCLE";
constexpr char general[] = "GENERAL";

void readShape(const KzXmlData *element, SDBSectionLine &section) {
    const std::string kind = KzXmlDataUtil::getAttributeString(element, kindKey);
    double width = 0.0;
    double height = 0.0;
    double area = section.getArea();
    if (kind == rectangle && KzXmlDataUtil::readValToAttribute(element, widthKey, width) &&
        KzXmlDataUtil::readValToAttribute(element, heightKey, height))
        section.setRectangle(width, height);
    else if (kind == circle && KzXmlDataUtil::readValToAttribute(element, diameterKey, width))
        section.setCircle(width);
    else if (KzXmlDataUtil::readValToAttribute(element, areaKey, area))
        section.setArea(area);
}

void writeShape(const SDBSectionLine &section, KzXmlData *element) {
    if (section.getKind() == SDBSectionLine::RECT) {
        element->setAttribute(kindKey, rectangle);
        element->setAttribute(widthKey, section.getWidth());
        element->setAttribute(heightKey, section.getHeight());
    } else if (section.getKind() == SDBSectionLine::CIRCLE) {
        element->setAttribute(kindKey, circle);
        element->setAttribute(diameterKey, section.getDiameter());
    } else {
        element->setAttribute(kindKey, general);
    }
}

}  // namespace

void SDBSectionVisitorXml::createSections(KzXmlData *root) {
    const KzXmlData *list = root ? root->findChild(listTag) : nullptr;
    if (!list || !manager_) return;
    for (const KzXmlData *element : list->getChildren())
        if (element->getName() == sectionTag) createOneSection(element);
}

void SDBSectionVisitorXml::createOneSection(const KzXmlData *element) {
    const KzXmlAttributeData *name = element->findAttribute(nameKey);
    if (!name) return;
    SDBSection *section = manager_->findSectionToName(name->getData());
    if (!section) {
        section = new SDBSectionLine(name->getData(), 0.0);
        manager_->add(section);
    }
    if (auto *line = dynamic_cast<SDBSectionLine *>(section)) {
        readShape(element, *line);
    } else {
        double area = section->getArea();
        KzXmlDataUtil::readValToAttribute(element, areaKey, area);
        section->setArea(area);
    }
    bool userDefined = section->isUserDefined();
    KzXmlDataUtil::readValToAttribute(element, userKey, userDefined);
    section->setUserDefined(userDefined);
}

void SDBSectionVisitorXml::writeSections(KzXmlTree *tree) {
    if (!tree) return;
    varnel::KeyedElements elements(varnel::giveChild(*tree->getRoot(), listTag), sectionTag, nameKey);
    if (manager_) {
        for (const SDBSection *section : manager_->getSections())
            if (KzXmlData *element = elements.give(section->getName())) writeOneSection(*section, element);
    }
    elements.dropOthers();
}

void SDBSectionVisitorXml::writeOneSection(const SDBSection &section, KzXmlData *element) {
    if (const auto *line = dynamic_cast<const SDBSectionLine *>(&section))
        writeShape(*line, element);
    else
        element->setAttribute(kindKey, general);
    element->setAttribute(areaKey, section.getArea());
    element->setAttribute(userKey, section.isUserDefined() ? 1 : 0);
}
