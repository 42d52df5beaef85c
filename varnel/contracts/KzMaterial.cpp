#include "varnel/contracts/KzMaterial.h"

void KzMaterial::setName(const std::string &name) {
    if (name_.set(name)) markChanged();
}

void KzMaterial::markChanged() {
    changed_ = true;
    name_.markChanged();
}
