#ifndef VARNEL_TESTS_SUPPORT_DOCUMENT_H
#define VARNEL_TESTS_SUPPORT_DOCUMENT_H

#include <initializer_list>
#include <locale>
#include <sstream>
#include <string>

#include "varnel/contracts/KzXmlAttributeData.h"
#include "varnel/contracts/KzXmlData.h"
#include "varnel/contracts/KzXmlTree.h"
#include "varnel/exchange/VarnelExchangeXml.h"
#include "varnel/model/Varnel.h"
#include "varnel/model/VarnelDefaultProperties.h"
#include "varnel/model/VarnelSubSystem.h"
#include "varnel/process/VarnelErrorHandler.h"
#include "varnel/process/VarnelFactory.h"
#include "varnel/process/VarnelManager.h"

/// A project whose document is text in memory instead of a file.
class Document {
  public:
    Document() : manager(&factory_) {}

    /// Reads a whole document into the model.
    void read(const std::string &text) {
        std::istringstream stream(text);
        exchange().getTree()->buildOfStream(stream);
        exchange().get(&manager);
    }
    /// Reads what stands inside of the top subsystem.
    void readSubSystem(const std::string &content) {
        read("<VARNEL><SUBSYSTEM NAME=\"System\">" + content + "</SUBSYSTEM></VARNEL>");
    }
    /// Numbers and writes the model, as an output into a file does, and answers the document.
    std::string write() {
        manager.setup();
        exchange().updateSystem(&manager);
        return text();
    }
    /// The document as it stands.
    std::string text() {
        std::ostringstream stream;
        exchange().getTree()->putToStream(stream, true);
        return stream.str();
    }
    /// The element below the root along the names; null where one is missing.
    KzXmlData *find(std::initializer_list<const char *> names) {
        KzXmlData *element = exchange().getTree()->getRoot();
        for (const char *name : names)
            if (element) element = element->findChild(name);
        return element;
    }
    VarnelExchangeXml &exchange() { return *static_cast<VarnelExchangeXml *>(manager.getExchange()); }
    Varnel &model() { return *manager.getDatabase(); }

  private:
    VarnelFactory factory_;

  public:
    VarnelManager manager;
};

/// The text of an element with all below it, without the document's head.
inline std::string textOf(const KzXmlData *element) {
    if (!element) return "(none)";
    std::string text = "<" + element->getName();
    for (const KzXmlAttributeData *attribute : element->getAttributes())
        text += " " + attribute->getKey() + "=\"" + attribute->getData() + "\"";
    text += ">" + element->getData();
    for (const KzXmlData *child : element->getChildren()) text += textOf(child);
    return text + "</" + element->getName() + ">";
}

/// A vector as an element.
inline std::string vectorElement(const std::string &name, double x, double y, double z) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << '<' << name << "><X>" << x << "</X><Y>" << y << "</Y><Z>" << z << "</Z></" << name << '>';
    return text.str();
}

/// A straight line as an element.
inline std::string lineElement(double x1, double y1, double x2, double y2, double z = 0.0) {
    return "<LINE TYPE=\"STRAIGHT\">" + vectorElement("START", x1, y1, z) + vectorElement("END", x2, y2, z) +
           "</LINE>";
}

#endif
