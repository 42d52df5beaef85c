#include "varnel/contracts/Found/Foundation.h"

#include "varnel/contracts/Found/FoundationManager.h"

namespace Found {

Foundation::Foundation(const Foundation &other)
    : number_(other.number_), name_(other.name_), dispLine_(other.dispLine_), changed_(other.changed_) {}

bool Foundation::getDispLine(KzVector3D &dispLine) const {
    dispLine = dispLine_;
    return true;
}

void Foundation::setDispLine(const KzVector3D &dispLine) {
    if (dispLine == dispLine_) return;
    if (manager_) manager_->dropLine(*this);
    dispLine_ = dispLine;
    if (manager_) manager_->fileLine(this);
    changed_ = true;
}

void Foundation::setName(const std::string &name) {
    if (name_.set(name)) changed_ = true;
}

}  // namespace Found
