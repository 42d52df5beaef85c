// "SETTINGS" with "DEFAULT-PROPERTIES".

#include "varnel/contracts/KzXmlDataUtil.h"
#include "varnel/contracts/KzXmlTree.h"
#include "varnel/exchange/ElementReading.h"
#include "varnel/exchange/VarnelExchangeXml.h"
#include "varnel/exchange/VarnelExchangeXmlBeam.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/loads/VarnelLineLoadData.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelHole.h"
#include "varnel/members/VarnelLineBoundaryData.h"
#include "varnel/members/VarnelLoadDistributionArea.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/model/VarnelDefaultProperties.h"
#include "varnel/process/VarnelManager.h"

namespace {

constexpr const char *locationWords[] = {"AT_NODE", "AT_EDGE_CENTER", "AT_ELEMENT_CENTER"};  // by value
constexpr int locationCount = 3;
constexpr int atElementCenter = 2;

const char *locationWord(int location) {
    return locationWords[location >= 0 && location < locationCount ? location : atElementCenter];
}

int locationOf(const std::string &word) {
    for (int i = 0; i < locationCount; ++i)
        if (word == locationWords[i]) return i;
    return atElementCenter;
}

/// The attribute; in old documents a child of that name, which counts as 0 when it is missing, too.
int attributeOrChild(const KzXmlData *settings, const char *key) {
    const KzXmlAttributeData *attribute = settings->findAttribute(key);
    return attribute ? attribute->getInteger() : KzXmlDataUtil::getChildInt(settings, key);
}

}  // namespace

void VarnelExchangeXml::updateSettings(VarnelManager *manager) {
    const RootCursor guard(tree());
    open("SETTINGS");
    flush();
    if (manager) {
        setAttribute("AUTOLOAD", manager->getLoadcaseAutomation());
        setAttribute("SYSBOUNDARY", manager->getSystemBoundary());
        setAttribute("OWNWEIGHT", manager->getOwnWeight());
        setAttribute("QUADRATIC", manager->doUseQuadraticShape());
        setAttribute("DESIGNLOCATION", locationWord(manager->getDesignLocation()));
    }
    updateDefaultProperties();
    close();
}

/// Through copies: a writer, which a host may have overridden, never reaches the defaults themselves.
void VarnelExchangeXml::updateDefaultProperties() {
    const VarnelDefaultProperties &defaults = *VarnelDefaultProperties::get();
    const auto write = [this](const char *name, auto writer) {
        open(name);
        writer();
        close();
    };
    open("DEFAULT-PROPERTIES");
    VarnelAreaLoad areaLoad(defaults.getAreaLoad());
    write("AREALOAD", [&] { updateOneAreaLoad(nullptr, &areaLoad); });
    write("LINELOAD", [&] { updateOneLineLoadData(&defaults.getLineLoad()); });
    VarnelPointLoad pointLoad(defaults.getPointLoad());
    write("POINTLOAD", [&] { updateOnePointLoad(nullptr, &pointLoad); });
    VarnelPointBoundary pointBoundary(KzVector3D(), 0, nullptr);
    pointBoundary.setData(defaults.getPBData());
    write("POINTBOUNDARY", [&] { updateOnePointBoundary(nullptr, &pointBoundary); });
    const VarnelLineBoundaryData lineBoundary(defaults.getLBData());
    write("LINEBOUNDARY", [&] { updateOneLineBoundaryData(&lineBoundary); });
    VarnelBeam beam;
    beam.setData(defaults.getBeamProp());
    write("BEAM", [&] { getExchangeBeam()->updateOneBeam(&beam); });
    VarnelPlate plate(nullptr);  // without a model, so that no name is registered
    plate.setData(defaults.getPlateProp());
    write("PLATE", [&] { updateOnePlate(nullptr, &plate); });
    VarnelHole hole(defaults.getHole());
    write("HOLE", [&] { updateOneHole(nullptr, &hole); });
    VarnelLoadDistributionArea area(defaults.getLDA());
    write("LDAREA", [&] { updateOneLoadDistributionArea(&area); });
    close();
}

void VarnelExchangeXml::createSettings(KzXmlData *root) {
    KzXmlData *settings = root ? root->findTree("SETTINGS", false) : nullptr;
    VarnelManager *manager = getManager();
    if (!settings || !manager) return;
    varnel::ifBool(settings, "QUADRATIC", [manager](bool value) { manager->enableUseQuadraticShape(value); });
    manager->setLoadcaseAutomation(attributeOrChild(settings, "AUTOLOAD") != 0);
    manager->setSystemBoundary(attributeOrChild(settings, "SYSBOUNDARY"));
    manager->setOwnWeight(attributeOrChild(settings, "OWNWEIGHT") != 0);
    manager->setDesignLocation(locationOf(KzXmlDataUtil::getAttributeString(settings, "DESIGNLOCATION")));
    if (KzXmlData *defaults = settings->findChild("DEFAULT-PROPERTIES")) createDefaultProperties(defaults);
}

void VarnelExchangeXml::createDefaultProperties(KzXmlData *element) {
    VarnelDefaultProperties &defaults = *VarnelDefaultProperties::get();
    const auto read = [element](const char *name, auto reader) {
        if (KzXmlData *child = element->findTree(name, false)) reader(child);
    };
    read("AREALOAD", [&](KzXmlData *child) {
        VarnelAreaLoad load;
        readOneAreaLoad(child, &load);
        defaults.setAreaLoad(load);
    });
    read("LINELOAD", [&](KzXmlData *child) {
        VarnelLineLoadData data;
        readOneLineLoadData(child, &data);
        defaults.setLineLoad(data);
    });
    read("POINTLOAD", [&](KzXmlData *child) {
        VarnelPointLoad load;
        readOnePointLoad(child, &load);
        defaults.setPointLoad(load);
    });
    read("LINEBOUNDARY", [&](KzXmlData *child) {
        VarnelLineBoundaryData data(0, "");
        readOneLineBoundaryData(child, &data);
        defaults.setLBData(data);
    });
    read("POINTBOUNDARY", [&](KzXmlData *child) {
        VarnelPointBoundary boundary(KzVector3D(), 0, nullptr);
        readOnePointBoundary(child, &boundary);
        defaults.setPBData(boundary.getData());
    });
    read("BEAM", [&](KzXmlData *child) {
        VarnelBeam beam;
        getExchangeBeam()->readOneBeam(child, &beam, nullptr);
        defaults.setBeamProp(beam.getData());
    });
    read("PLATE", [&](KzXmlData *child) {
        VarnelPlate plate(nullptr);
        readOnePlate(child, &plate);
        defaults.setPlateProp(plate.getData());
    });
    read("HOLE", [&](KzXmlData *child) {
        VarnelHole hole;
        readOneHole(child, &hole);
        defaults.setHole(hole);
    });
    read("LDAREA", [&](KzXmlData *child) {
        VarnelLoadDistributionArea area;
        readOneLoadDistributionArea(child, &area);
        defaults.setLDA(area);
    });
}
