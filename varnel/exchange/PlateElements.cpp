// "PLATES" with "PLATE", its "BOUNDS" and "AREALOADS".

#include "varnel/contracts/Found/Foundation.h"
#include "varnel/contracts/Found/FoundationManager.h"
#include "varnel/contracts/KzConcrete.h"
#include "varnel/contracts/KzMaterialUtil.h"
#include "varnel/exchange/ElementReading.h"
#include "varnel/exchange/ElementWriting.h"
#include "varnel/exchange/VarnelExchangeXml.h"
#include "varnel/geometry/VarnelArea.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/members/VarnelDesignData.h"
#include "varnel/members/VarnelLineBoundaryData.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPlateEdgeData.h"
#include "varnel/members/VarnelPlateProperties.h"
#include "varnel/model/Varnel.h"
#include "varnel/process/VarnelManager.h"

void VarnelExchangeXml::updatePlates(Varnel *model) {
    if (!model) return;
    varnel::rebuildList(*this, "PLATES", "PLATE", model->getPlates(),
                        [this, model](VarnelPlate *plate) { updateOnePlate(model, plate); });
}

void VarnelExchangeXml::createPlates(KzXmlData *element, Varnel *model) {
    varnel::eachChild(element ? element->findTree("PLATES", false) : nullptr, "PLATE",
                      [this, model](KzXmlData *child) { createOnePlate(child, model); });
}

void VarnelExchangeXml::updateOnePlate(Varnel *model, VarnelPlate *plate) {
    if (!plate) return;
    const VarnelPlateProperties &data = plate->getData();
    setAttribute("NAME", plate->getName());
    setAttribute("TYPE", data.getElementType());
    setAttribute("MESH", data.getMeshType());
    setAttribute("PTYPE", plate->getPlateType());
    setAttribute("AUTOMESH", data.getAutoMeshSize());
    setAttribute("MESHSIZE-X", data.getMeshSizeX());
    setAttribute("MESHSIZE-Y", data.getMeshSizeY());
    setAttribute("MESHANGLE", data.getMeshAngle());
    setAttribute("THICK", data.getThick());
    if (const KzConcrete *concrete = plate->getConcrete(0))
        updateValueToKey("CONCRETE", concrete->getName());
    else if (const KzMaterial *material = plate->getMaterial(0))
        updateValueToKey("MATERIAL", material->getName());
    updateArea(plate->getGeo());
    open("BOUNDS");
    flush();
    const std::size_t lines = plate->getGeo() ? plate->getGeo()->getNumLines() : 0;
    for (std::size_t i = 0; i < lines; ++i) updateEdge(model, plate, i);
    close();
    open("AREALOADS");
    for (VarnelAreaLoad *load : plate->getAreaLoads()) {
        if (!load) continue;
        openToAttribute("AREALOAD", "LCTYPE", static_cast<int>(load->getLcType()));
        updateAreaLoadValues(load);
        close();
    }
    close();
    if (const Found::Foundation *foundation = plate->getFoundation())
        setAttribute("FOUND", foundation->getNumber());
    updateDesignData(plate->getDesign());
}

void VarnelExchangeXml::updateEdge(Varnel *model, VarnelPlate *plate, std::size_t index) {
    const VarnelLine *line = plate->getGeo()->getLine(index);
    openToAttribute("EDGE", "POS", static_cast<int>(index));
    setAttribute("NUMPARTS", line ? line->getNumberOfParts() : 0);
    if (VarnelLineBoundaryData *boundary = plate->getBoundary(index)) {
        setAttribute("NAME", boundary->getName());
        setAttribute("NUMBER", boundary->getNumber());
        setAttribute("DOF", boundary->getDof());
        setAttribute("LOCAL", boundary->getLocal());
        setAttribute("WIDTH", boundary->getWidth());
        updateOneStiffnessData(boundary->getStiffnessData());
        updateOneOwnWeightTransferData(boundary);
        if (boundary->isReference() && modelUnchanged()) updateOneLineBoundaryResult(model, boundary);
        if (const VarnelPlateEdgeData *edge = plate->getEdgeData(index))
            setAttribute("JDOF", edge->getJoint());
    }
    close();
}

VarnelPlate *VarnelExchangeXml::createOnePlate(KzXmlData *element, Varnel *model) {
    VarnelPlate *plate = element && model ? model->givePlate(true) : nullptr;
    if (!plate) return nullptr;
    plate->setArea(readOutline(element, model));
    readOnePlate(element, plate);
    VarnelDesignData design;
    readDesignData(element, &design);
    plate->setDesign(model->giveDesignData(design));
    return plate;
}

void VarnelExchangeXml::readOnePlate(KzXmlData *element, VarnelPlate *plate) {
    if (!element || !plate) return;
    varnel::ifInt(element, "NUMBER", [plate](int value) { plate->setNumber(value); });
    varnel::ifText(element, "NAME", [plate](const std::string &value) { plate->setName(value); });
    varnel::ifDouble(element, "THICK", [plate](double value) { plate->setThick(value); });
    varnel::ifInt(element, "TYPE", [plate](int value) { plate->setElementType(value); });
    varnel::ifInt(element, "MESH", [plate](int value) { plate->setMeshType(value); });
    varnel::ifInt(element, "PTYPE", [plate](int value) { plate->setPlateType(value); });
    readPlateMaterial(element, plate);
    varnel::ifBool(element, "AUTOMESH", [plate](bool value) { plate->setAutoMeshSize(value); });
    readPlateFound(element, plate);
    varnel::ifDouble(element, "MESHSIZE", [plate](double value) {
        plate->setMeshSizeX(value);
        plate->setMeshSizeY(value);
    });
    varnel::ifDouble(element, "MESHSIZE-X", [plate](double value) { plate->setMeshSizeX(value); });
    varnel::ifDouble(element, "MESHSIZE-Y", [plate](double value) { plate->setMeshSizeY(value); });
    varnel::ifDouble(element, "MESHANGLE", [plate](double value) { plate->setMeshAngle(value); });
    createBoundariesToPlate(plate, element->findChild("BOUNDS"));
    createAreaLoadsToPlate(plate, element->findChild("AREALOADS"));
}

void VarnelExchangeXml::readPlateMaterial(KzXmlData *element, VarnelPlate *plate) {
    KzMaterial *material = nullptr;
    if (const KzXmlData *concrete = element->findChild("CONCRETE"))
        material = findConcrete(concrete->getData());
    else if (const KzXmlData *other = element->findChild("MATERIAL"))
        material = findMaterial(other->getData());
    else
        return;
    if (!material) KzMaterialUtil::throwMaterialFoundError();
    plate->setMaterial(material, 0);
}

void VarnelExchangeXml::readPlateFound(KzXmlData *element, VarnelPlate *plate) {
    if (!plate || !getManager()) return;
    Found::FoundationManager *foundations = getManager()->getFoundationManager();
    const bool byNumber = varnel::ifInt(element, "FOUND", [plate, foundations](int number) {
        plate->setFoundation(foundations->findFoundation(number));
    });
    KzVector3D stiffness;
    if (byNumber || !getVectorToKey(element, "FOUND", stiffness) || !(stiffness.length() > 0.0)) return;
    plate->setFoundation(foundations->giveFoundation(Found::Foundation(stiffness), true));
}

void VarnelExchangeXml::createBoundariesToPlate(VarnelPlate *plate, KzXmlData *boundsElement) {
    if (!plate) return;
    varnel::eachChild(boundsElement, [this, plate](KzXmlData *child) {
        // A position that is absent or negative is past every outline, so the edge is passed over.
        const auto edge = static_cast<std::size_t>(varnel::readInt(child, "POS", -1));
        plate->setBoundary(edge, VarnelLineBoundaryData(varnel::readInt(child, "DOF", 0), ""));
        plate->setEdgeJoint(edge, varnel::readInt(child, "JDOF", 0));
        varnel::ifInt(child, "NUMPARTS", [plate, edge](int parts) {
            if (plate->getGeo()) plate->getGeo()->setNumParts(edge, parts);
        });
        VarnelLineBoundaryData *boundary = plate->getBoundary(edge);
        if (boundary) readEdgeBoundary(child, boundary);
    });
}

void VarnelExchangeXml::readEdgeBoundary(KzXmlData *element, VarnelLineBoundaryData *boundary) {
    boundary->setWidth(varnel::readDouble(element, "WIDTH", 0.0));
    boundary->setLocal(varnel::readInt(element, "LOCAL", 0) != 0);
    varnel::ifText(element, "NAME", [boundary](const std::string &value) { boundary->setName(value); });
    varnel::ifInt(element, "NUMBER", [boundary](int value) { boundary->setNumber(value); });
    KzVector3D displacement, rotation, direction;
    getVectorToKey(element, "STIFFD", displacement);
    getVectorToKey(element, "STIFFR", rotation);
    if (rotation.length() > 0.0 || displacement.length() > 0.0) {
        boundary->setRotStiff(rotation);
        boundary->setDispStiff(displacement);
    }
    if (getVectorToKey(element, "LOCSYS", direction)) boundary->setLocsys(direction.normalize());
    readOneOwnWeightTransferData(element, boundary);
    // The current model, also while the plates of a nested subsystem are read: names of supports are looked
    // for there.
    if (Varnel *model = getManager() ? getManager()->getDatabase() : nullptr) model->add(boundary);
}

void VarnelExchangeXml::createAreaLoadsToPlate(VarnelPlate *plate, KzXmlData *element) {
    if (!plate) return;
    varnel::eachChild(element, [this, plate](KzXmlData *child) {
        const auto type = static_cast<SysBase::LoadcaseData::Type>(varnel::readInt(child, "LCTYPE", 2));
        VarnelAreaLoad *load = plate->giveAreaLoad(type, nullptr);
        varnel::ifText(child, "NAME", [load](const std::string &value) { load->setName(value); });
        readLoadcase(child, load);
        readAreaLoadData(child, load);
    });
}
