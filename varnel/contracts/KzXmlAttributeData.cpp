#include "varnel/contracts/KzXmlAttributeData.h"

#include "varnel/contracts/TextNumbers.h"

int KzXmlAttributeData::getInteger() const {
    return varnel::readInteger(data_);
}

double KzXmlAttributeData::getDouble() const {
    return varnel::readDouble(data_);
}

bool KzXmlAttributeData::checkValue(int value) const {
    const auto own = varnel::readWholeInteger(data_);
    return own && *own == varnel::wholeInteger(value);
}

bool KzXmlAttributeData::checkValue(std::uint64_t value) const {
    const auto own = varnel::readWholeInteger(data_);
    return own && *own == varnel::WholeInteger{false, value};
}
