#include "varnel/process/VarnelConverter.h"

VarnelConverter::VarnelConverter() : projectPath_(std::make_unique<Tools::Path>()) {}

VarnelConverter::~VarnelConverter() {
    VarnelConverter::removeAll();
}

void VarnelConverter::showDocument() {}

void VarnelConverter::setDatabase(Varnel *model) {
    database_ = model;
}

void VarnelConverter::setCurrentLoadcase(int) {}

void VarnelConverter::setProjectPath(const std::string &path) {
    *projectPath_ = Tools::Path(path);
}

void VarnelConverter::removeAll() {}

void VarnelConverter::modifyModel() {}

void VarnelConverter::refineMesh() {}

void VarnelConverter::setupConstructionStage(VarnelConstructionStage *) {}
