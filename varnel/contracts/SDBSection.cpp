#include "varnel/contracts/SDBSection.h"

void SDBSection::setName(const std::string &name) {
    if (name_.set(name)) changed_ = true;
}

void SDBSection::setArea(double area) {
    if (area == area_) return;
    area_ = area;
    changed_ = true;
}

void SDBSection::setUserDefined(bool value) {
    if (value == userDefined_) return;
    userDefined_ = value;
    changed_ = true;
}
