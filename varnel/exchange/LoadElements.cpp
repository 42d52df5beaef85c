// "POINTLOADS", "LINELOADS" and "AREALOADS" with their loads; area loads of a plate share the values' form.

#include "varnel/contracts/KzXmlDataUtil.h"
#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/exchange/ElementReading.h"
#include "varnel/exchange/ElementWriting.h"
#include "varnel/exchange/VarnelExchangeXml.h"
#include "varnel/geometry/VarnelArea.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/model/Varnel.h"
#include "varnel/process/VarnelManager.h"

namespace {

SysBase::LoadcaseData::Type loadcaseType(int value) {
    return static_cast<SysBase::LoadcaseData::Type>(value);
}

template <class Load>
void updateLoadcase(VarnelExchangeXml &exchange, const Load &load) {
    if (const SysBase::Loadcase *loadcase = load.getLoadcase())
        exchange.setAttribute("LC", loadcase->getNumber());
}

}  // namespace

/// A case that is not there is made: loads come before the load cases in the document.
void VarnelExchangeXml::readLoadcase(KzXmlData *element, VarnelLoad *load) {
    varnel::ifInt(element, "LC", [this, load](int number) {
        if (getManager()) load->setLoadcase(getManager()->giveLoadcaseToNumber(number, true));
    });
}

void VarnelExchangeXml::updatePointLoads(Varnel *model) {
    if (!model) return;
    varnel::rebuildList(*this, "POINTLOADS", "POINTLOAD", model->getPointLoads(),
                        [this, model](VarnelPointLoad *load) { updateOnePointLoad(model, load); });
}

void VarnelExchangeXml::updateOnePointLoad(Varnel *, VarnelPointLoad *load) {
    if (!load) return;
    setAttribute("NAME", load->getName());
    setAttribute("LCTYPE", load->getLcType());
    updateLoadcase(*this, *load);
    updateVectorToKey("POS", load->getCoor());
    updateVectorToKey("FORCE", load->getData().getForce());
    updateVectorToKey("MOMENT", load->getData().getMoment());
}

VarnelPointLoad *VarnelExchangeXml::createOnePointLoad(KzXmlData *element, Varnel *model) {
    if (!element || !model) return nullptr;
    VarnelPointLoad *load = model->givePointLoad();
    readOnePointLoad(element, load);
    return load;
}

void VarnelExchangeXml::readOnePointLoad(KzXmlData *element, VarnelPointLoad *load) {
    if (!element || !load) return;
    const int number = varnel::readInt(element, "NUMBER", 0);
    const int type = varnel::readInt(element, "LCTYPE", 0);
    KzVector3D vector;
    if (getVectorToKey(element, "POS", vector)) load->setCoor(vector);
    if (getVectorToKey(element, "FORCE", vector)) load->setForce(vector);
    if (getVectorToKey(element, "MOMENT", vector)) load->setMoment(vector);
    readLoadcase(element, load);
    load->setLcType(loadcaseType(type));
    load->setNumber(number);  // a load without a number gets 0, not the next free one
    varnel::ifText(element, "NAME", [load](const std::string &value) { load->setName(value); });
}

void VarnelExchangeXml::updateLineLoads(Varnel *model) {
    if (!model) return;
    varnel::rebuildList(*this, "LINELOADS", "LINELOAD", model->getLineLoads(),
                        [this, model](VarnelLineLoad *load) { updateOneLineLoad(model, load); });
}

void VarnelExchangeXml::updateOneLineLoad(Varnel *, VarnelLineLoad *load) {
    if (!load) return;
    setAttribute("LCTYPE", load->getLcType());
    updateLoadcase(*this, *load);
    updateOneLine(load->getLine());
    updateOneLineLoadData(&load->getData());
    open("LOCSYS");
    setAttribute("TYPE", load->getLocsysType());
    updateVector(load->getLocsys());
    close();
}

VarnelLineLoad *VarnelExchangeXml::createOneLineLoad(KzXmlData *element, Varnel *model) {
    if (!element || !model) return nullptr;
    VarnelLineLoad *load = model->giveLineLoad(getLine(element).release());
    readOneLineLoad(element, load);
    return load;
}

void VarnelExchangeXml::readOneLineLoad(KzXmlData *element, VarnelLineLoad *load) {
    if (!element || !load) return;
    const int number = varnel::readInt(element, "NUMBER", 0);
    VarnelLineLoadData data;
    readOneLineLoadData(element, &data);
    load->getData() = data;  // as a whole: vectors that are missing become zero
    readLoadcase(element, load);
    load->setNumber(number);
    varnel::ifInt(element, "LCTYPE", [load](int value) { load->setLcType(loadcaseType(value)); });
    const KzXmlData *locsys = element->findChild("LOCSYS");
    if (!locsys) return;
    load->setLocsys(getVector(locsys).normalize());
    varnel::ifInt(locsys, "TYPE", [load](int value) { load->setLocsysType(value); });
}

void VarnelExchangeXml::updateOneLineLoadData(const VarnelLineLoadData *data) {
    if (!data) return;
    setAttribute("NAME", data->getName());
    setAttribute("TYPE", data->getType());
    updateVectorToKey("FORCEA", data->getP1());
    updateVectorToKey("FORCEE", data->getP2());
    updateVectorToKey("MOMENTA", data->getM1());
    updateVectorToKey("MOMENTE", data->getM2());
}

void VarnelExchangeXml::readOneLineLoadData(KzXmlData *element, VarnelLineLoadData *data) {
    if (!data) return;
    KzVector3D vector;
    if (getVectorToKey(element, "FORCEA", vector)) data->setP1(vector);
    if (getVectorToKey(element, "FORCEE", vector)) data->setP2(vector);
    if (getVectorToKey(element, "MOMENTA", vector)) data->setM1(vector);
    if (getVectorToKey(element, "MOMENTE", vector)) data->setM2(vector);
    varnel::ifInt(element, "TYPE",
                  [data](int value) { data->setType(static_cast<VarnelLoadData::loadType>(value)); });
    varnel::ifText(element, "NAME", [data](const std::string &value) { data->setName(value); });
}

void VarnelExchangeXml::updateAreaLoads(Varnel *model) {
    if (!model) return;
    varnel::rebuildList(*this, "AREALOADS", "AREALOAD", model->getAreaLoads(),
                        [this, model](VarnelAreaLoad *load) { updateOneAreaLoad(model, load); });
}

void VarnelExchangeXml::updateOneAreaLoad(Varnel *, VarnelAreaLoad *load) {
    if (!load) return;
    setAttribute("LCTYPE", load->getLcType());
    setAttribute("TYPE", load->getData().getType());
    setAttribute("TRANS", load->getData().getTransmissionType());
    updateArea(load->getArea());
    updateAreaLoadValues(load);
}

void VarnelExchangeXml::updateAreaLoadValues(VarnelAreaLoad *load) {
    if (!load) return;
    setAttribute("NAME", load->getName());
    updateLoadcase(*this, *load);
    updateVector(load->getData().getP());
}

VarnelAreaLoad *VarnelExchangeXml::createOneAreaLoad(KzXmlData *element, Varnel *model) {
    if (!element || !model) return nullptr;
    VarnelAreaLoad *load = model->giveAreaLoad();
    readOneAreaLoad(element, load);
    load->setArea(readOutline(element, model));
    return load;
}

void VarnelExchangeXml::readOneAreaLoad(KzXmlData *element, VarnelAreaLoad *load) {
    if (!element || !load) return;
    // The number in the file is not read: the model numbers its area loads by their place.
    load->setLcType(loadcaseType(varnel::readInt(element, "LCTYPE", 2)));
    readLoadcase(element, load);
    readAreaLoadData(element, load);
}

void VarnelExchangeXml::readAreaLoadData(KzXmlData *element, VarnelAreaLoad *load) {
    if (!element || !load) return;
    VarnelAreaLoadData data = load->getData();
    data.setType(static_cast<VarnelLoadData::loadType>(varnel::readInt(element, "TYPE", 0)));
    data.setTransmissionType(
        static_cast<VarnelAreaLoadData::TransmissionType>(varnel::readInt(element, "TRANS", 0)));
    varnel::ifText(element, "NAME", [&data](const std::string &value) { data.setName(value); });
    double x = 0.0, y = 0.0, z = 0.0;
    KzXmlDataUtil::readValToChild(element, "LOAD", z);
    KzXmlDataUtil::readValToChild(element, "PX", x);
    KzXmlDataUtil::readValToChild(element, "PY", y);
    KzXmlDataUtil::readValToChild(element, "PZ", z);                          // wins over "LOAD"
    if (element->findChild("X")) KzXmlDataUtil::getVector(element, x, y, z);  // wins over all of them
    data.setP(KzVector3D(x, y, z));
    load->setData(data);
}
