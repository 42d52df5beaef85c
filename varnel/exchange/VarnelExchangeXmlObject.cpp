#include "varnel/exchange/VarnelExchangeXmlObject.h"

#include "varnel/exchange/VarnelExchangeXml.h"

void VarnelExchangeXmlObject::open(const std::string &name) {
    exXml_->open(name);
}

void VarnelExchangeXmlObject::close() {
    exXml_->close();
}

void VarnelExchangeXmlObject::openToAttribute(const std::string &name, const std::string &key, int value) {
    exXml_->openToAttribute(name, key, value);
}

void VarnelExchangeXmlObject::openToAttribute(const std::string &name, const std::string &key, double value) {
    exXml_->openToAttribute(name, key, value);
}

void VarnelExchangeXmlObject::openToAttribute(const std::string &name, const std::string &key,
                                              const std::string &value) {
    exXml_->openToAttribute(name, key, value);
}

void VarnelExchangeXmlObject::setAttribute(const std::string &key, int value) {
    exXml_->setAttribute(key, value);
}

void VarnelExchangeXmlObject::setAttribute(const std::string &key, const std::string &value) {
    exXml_->setAttribute(key, value);
}

void VarnelExchangeXmlObject::setAttribute(const std::string &key, double value) {
    exXml_->setAttribute(key, value);
}
