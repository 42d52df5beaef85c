#include "varnel/contracts/KzTextResource.h"

KzTextResource::KzTextResource()
    : texts_{{3039, "Own weight"}, {4627, "Load"}, {5571, "Group "}, {4175, "Beam"}, {4171, "Bar"}} {}

KzTextResource *KzTextResource::get() {
    static KzTextResource resource;
    return &resource;
}

std::string KzTextResource::loadString(unsigned int id) const {
    const auto text = texts_.find(id);
    return text == texts_.end() ? std::string() : text->second;
}
