#include "varnel/loads/VarnelLoad.h"

VarnelLoad::VarnelLoad(const VarnelLoad &other)
    : VarnelObject(other), VarnelPosition(other), changed_(true), lcType_(other.lcType_) {}

VarnelLoad &VarnelLoad::operator=(const VarnelLoad &other) {
    VarnelObject::operator=(other);
    VarnelPosition::operator=(other);
    changed_ = true;
    lcType_ = other.lcType_;
    return *this;
}

void VarnelLoad::setLoadcase(SysBase::Loadcase *loadcase) {
    getBaseData()->setLoadcase(loadcase);
    setChanged(true);
}

void VarnelLoad::forgetLoadcase(const SysBase::Loadcase *dying) {
    if (record().getLoadcase() == dying) getBaseData()->setLoadcase(nullptr);
}

// The slot that hands out the record is not const, but asking for the record changes nothing.
const VarnelLoadData &VarnelLoad::record() const {
    return *const_cast<VarnelLoad *>(this)->getBaseData();
}
