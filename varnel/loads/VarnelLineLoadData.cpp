#include "varnel/loads/VarnelLineLoadData.h"

#include <utility>

VarnelLineLoadData &VarnelLineLoadData::operator+=(const VarnelLineLoadData &other) {
    p1_ += other.p1_;
    m1_ += other.m1_;
    p2_ += other.p2_;
    m2_ += other.m2_;
    return *this;
}

void VarnelLineLoadData::swapEnds() {
    std::swap(p1_, p2_);
    std::swap(m1_, m2_);
}
