// "PBOUNDS" with "PBOUND", "LBOUNDS" with "LBOUND", and what supports share: stiffness and own weight.

#include "varnel/contracts/KzMath.h"
#include "varnel/contracts/KzMatrix44.h"
#include "varnel/exchange/ElementReading.h"
#include "varnel/exchange/ElementWriting.h"
#include "varnel/exchange/VarnelExchangeXml.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/geometry/VarnelPointBoundaryVisitor.h"
#include "varnel/members/VarnelBoundaryStiffnessData.h"
#include "varnel/members/VarnelLineBoundary.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/members/VarnelPointBoundaryCircle.h"
#include "varnel/members/VarnelPointBoundaryRectan.h"
#include "varnel/model/Varnel.h"

namespace {

/// Writes the shape of a column at the cursor; a support without a shape writes nothing.
class OutputPointBoundary : public VarnelPointBoundaryVisitor {
  public:
    explicit OutputPointBoundary(VarnelExchangeXml &exchange) : exchange_(exchange) {}

    void visit(VarnelPointBoundaryRectan *boundary) override {
        exchange_.open("SHPRECT");
        exchange_.setAttribute("A", boundary->getB());
        exchange_.setAttribute("B", boundary->getD());
        exchange_.close();
    }

    void visit(VarnelPointBoundaryCircle *boundary) override {
        exchange_.open("SHPCIRC");
        exchange_.setAttribute("D", boundary->getD());
        exchange_.close();
    }

  private:
    VarnelExchangeXml &exchange_;
};

}  // namespace

void VarnelExchangeXml::updatePointBoundaries(Varnel *model) {
    if (!model) return;
    varnel::rebuildList(
        *this, "PBOUNDS", "PBOUND", model->getPointBoundaries(),
        [this, model](VarnelPointBoundary *boundary) { updateOnePointBoundary(model, boundary); });
}

void VarnelExchangeXml::updateOnePointBoundary(Varnel *, VarnelPointBoundary *boundary) {
    if (!boundary) return;
    const bool inXY = boundary->onlyRotatedInXY();
    setAttribute("NAME", boundary->getName());
    setAttribute("DOF", boundary->getDof());
    // A spacing of 0 is meant to be left out, although it comes back as that of a new support.
    if (boundary->getSpacing() != 0.0) setAttribute("SPC", boundary->getSpacing());
    OutputPointBoundary shape(*this);
    boundary->getVisited(&shape);
    updateVectorToKey("POS", boundary->getCoor());
    if (inXY) {
        setAttribute("ANGLE", boundary->getAngle(2) / KzMath::Pi * 180.0);
    } else {
        const KzMatrix44 base = boundary->getBase();
        updateVectorToKey("LOCSYS-X", base.getVector(0));
        updateVectorToKey("LOCSYS-Y", base.getVector(1));
    }
    updateOneStiffnessData(boundary->getStiffnessData());
    updateOneOwnWeightTransferData(&boundary->getData());
}

VarnelPointBoundary *VarnelExchangeXml::createOnePointBoundary(KzXmlData *element, Varnel *model) {
    if (!element || !model) return nullptr;
    const int dof = varnel::readInt(element, "DOF", 0);
    KzVector3D place;
    getVectorToKey(element, "POS", place);
    VarnelPointBoundary *boundary = nullptr;
    if (const KzXmlData *rectangle = element->findChild("SHPRECT"))
        boundary = model->givePointBoundaryRectan(place, dof, varnel::readDouble(rectangle, "A", 0.0),
                                                  varnel::readDouble(rectangle, "B", 0.0));
    else if (const KzXmlData *circle = element->findChild("SHPCIRC"))
        boundary = model->givePointBoundaryCircle(place, dof, varnel::readDouble(circle, "D", 0.0));
    else
        boundary = model->givePointBoundary(place, dof);
    readOnePointBoundary(element, boundary);
    return boundary;
}

void VarnelExchangeXml::readOnePointBoundary(KzXmlData *element, VarnelPointBoundary *boundary) {
    if (!element || !boundary) return;
    KzVector3D place;
    getVectorToKey(element, "POS", place);
    boundary->setDof(varnel::readInt(element, "DOF", 0));
    boundary->setCoor(place);
    varnel::ifInt(element, "NUMBER", [boundary](int value) { boundary->setNumber(value); });
    const bool turned = varnel::ifDouble(element, "ANGLE", [boundary](double degrees) {
        boundary->setAngle(degrees / 180.0 * KzMath::Pi, 2);
    });
    if (!turned) readPointBoundaryBase(element, boundary);
    varnel::ifDouble(element, "SPC", [boundary](double value) { boundary->setSpacing(value); });
    varnel::ifText(element, "NAME", [boundary](const std::string &value) { boundary->setName(value); });
    KzVector3D displacement, rotation;
    const bool hasDisplacement = getVectorToKey(element, "STIFFD", displacement);
    const bool hasRotation = getVectorToKey(element, "STIFFR", rotation);
    if (hasDisplacement || hasRotation)
        boundary->setStiffness({displacement.getX(), displacement.getY(), displacement.getZ(),
                                rotation.getX(), rotation.getY(), rotation.getZ()});
    readOneOwnWeightTransferData(element, &boundary->getData());
}

void VarnelExchangeXml::readPointBoundaryBase(KzXmlData *element, VarnelPointBoundary *boundary) {
    KzVector3D x, y;
    getVectorToKey(element, "LOCSYS-X", x);
    getVectorToKey(element, "LOCSYS-Y", y);
    if (x == KzVector3D::getOrigin() || y == KzVector3D::getOrigin()) return;
    x.normalize();
    y.normalize();
    KzMatrix44 base;
    base.setId();
    base.setVector(0, x);
    base.setVector(1, y);
    base.setVector(2, x.crossProduct(y));
    boundary->setBase(base);
}

void VarnelExchangeXml::updateLineBoundaries(Varnel *model) {
    if (!model) return;
    varnel::rebuildList(
        *this, "LBOUNDS", "LBOUND", model->getLineBoundaries(),
        [this, model](VarnelLineBoundary *boundary) { updateOneLineBoundary(model, boundary); });
}

void VarnelExchangeXml::updateOneLineBoundary(Varnel *, VarnelLineBoundary *boundary) {
    if (!boundary) return;
    updateOneLineBoundaryData(&boundary->getData());
    updateOneLine(boundary->getGeo());
    updateOneStiffnessData(boundary->getStiffnessData());
    updateOneOwnWeightTransferData(&boundary->getData());
}

VarnelLineBoundary *VarnelExchangeXml::createOneLineBoundary(KzXmlData *element, Varnel *model) {
    if (!element || !model) return nullptr;
    auto boundary = std::make_unique<VarnelLineBoundary>(getLine(element).release());
    readOneLineBoundary(element, boundary.get());
    model->add(boundary.get());
    return boundary.release();
}

void VarnelExchangeXml::readOneLineBoundary(KzXmlData *element, VarnelLineBoundary *boundary) {
    if (!element || !boundary) return;
    varnel::ifInt(element, "NUMBER", [boundary](int value) { boundary->setNumber(value); });
    varnel::ifBool(element, "LOCAL", [boundary](bool value) { boundary->setLocal(value); });
    readOneLineBoundaryData(element, &boundary->getData());
}

void VarnelExchangeXml::updateOneLineBoundaryData(const VarnelLineBoundaryData *data) {
    if (!data) return;
    setAttribute("NAME", data->getName());
    setAttribute("DOF", data->getDof());
    setAttribute("WIDTH", data->getWidth());
    setAttribute("LOCAL", data->getLocal());
    updateVectorToKey("LOCSYS", data->getLocsys());
}

/// Without "LOCAL": meant to be taken by the free support alone, so that a template is never local.
void VarnelExchangeXml::readOneLineBoundaryData(KzXmlData *element, VarnelLineBoundaryData *data) {
    if (!element || !data) return;
    data->setDof(varnel::readInt(element, "DOF", 0));
    varnel::ifDouble(element, "WIDTH", [data](double value) { data->setWidth(value); });
    varnel::ifText(element, "NAME", [data](const std::string &value) { data->setName(value); });
    KzVector3D vector;
    if (getVectorToKey(element, "STIFFD", vector)) data->setDispStiff(vector);
    if (getVectorToKey(element, "STIFFR", vector)) data->setRotStiff(vector);
    if (getVectorToKey(element, "LOCSYS", vector)) data->setLocsys(vector.normalize());
    readOneOwnWeightTransferData(element, data);
}

void VarnelExchangeXml::updateOneStiffnessData(const VarnelBoundaryStiffnessData *data) {
    if (!data) {
        remove("STIFFD");
        remove("STIFFR");
        return;
    }
    if (data->getDispStiff().length() != 0.0) updateVectorToKey("STIFFD", data->getDispStiff());
    if (data->getRotStiff().length() != 0.0) updateVectorToKey("STIFFR", data->getRotStiff());
}

void VarnelExchangeXml::updateOneOwnWeightTransferData(const VarnelBoundaryData *data) {
    if (!data) return;
    open("OWNWEIGHT");
    flush();
    setAttribute("TRANSFER", data->doTransferOwnWeight());
    setAttribute("SPECIFICWEIGHT", data->getSpecificWeight());
    setAttribute("HEIGHT", data->getHeight());
    close();
}

void VarnelExchangeXml::readOneOwnWeightTransferData(KzXmlData *element, VarnelBoundaryData *data) {
    if (!element || !data) return;
    const KzXmlData *weight = element->findChild("OWNWEIGHT");
    varnel::ifBool(weight, "TRANSFER", [data](bool value) { data->setTransferOwnWeight(value); });
    varnel::ifDouble(weight, "SPECIFICWEIGHT", [data](double value) { data->setSpecificWeight(value); });
    varnel::ifDouble(weight, "HEIGHT", [data](double value) { data->setHeight(value); });
}
