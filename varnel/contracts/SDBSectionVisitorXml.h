#ifndef VARNEL_CONTRACTS_SDBSECTIONVISITORXML_H
#define VARNEL_CONTRACTS_SDBSECTIONVISITORXML_H

#include "varnel/contracts/Export.h"

class KzXmlData;
class KzXmlTree;
class SDBSection;
class SDBSectionManager;

/// Reads and writes the element SECTIONS below the root.
class VARNEL_EXPORT SDBSectionVisitorXml {
  public:
    /// The manager is shared; null has no sections and reads none.
    explicit SDBSectionVisitorXml(SDBSectionManager *manager) : manager_(manager) {}
    virtual ~SDBSectionVisitorXml() = default;

    /// Finds or makes one section for each SECTION with a NAME below the root's SECTIONS. A shape without its
    /// dimensions counts as a general one.
    void createSections(KzXmlData *root);
    /// Brings one SECTION for each name up to date, drops every other SECTION and leaves other elements
    /// alone. The cursor stays.
    void writeSections(KzXmlTree *tree);

  private:
    void createOneSection(const KzXmlData *element);
    static void writeOneSection(const SDBSection &section, KzXmlData *element);

    SDBSectionManager *manager_;
};

#endif
