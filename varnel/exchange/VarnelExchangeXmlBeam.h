#ifndef VARNEL_EXCHANGE_VARNELEXCHANGEXMLBEAM_H
#define VARNEL_EXCHANGE_VARNELEXCHANGEXMLBEAM_H

#include "varnel/exchange/VarnelExchangeXmlObject.h"

class VarnelBeam;

namespace Found {
class Foundation;
}

/// Reads and writes the element "BEAMS" of a subsystem.
class VARNEL_EXPORT VarnelExchangeXmlBeam : public VarnelExchangeXmlObject {
  public:
    using VarnelExchangeXmlObject::VarnelExchangeXmlObject;

    /// Every child "BEAM" of "BEAMS" becomes a beam; a null element is ignored.
    void create(KzXmlData *subSystem, Varnel *model) override;
    /// Rebuilds the list; a model without beams loses the element.
    void update(Varnel *model) override;
    /// Fills an existing beam. Throws Tools::Error for an unknown material.
    virtual void readOneBeam(KzXmlData *element, VarnelBeam *beam, Varnel *model);
    /// Fills the element at the cursor.
    virtual void updateOneBeam(VarnelBeam *beam);
    /// Reads into the model's beam of that number, made if absent.
    virtual VarnelBeam *createOneBeam(KzXmlData *element, Varnel *model);
    virtual ~VarnelExchangeXmlBeam();

  private:
    void createBeamResults(KzXmlData *element, VarnelBeam *beam);
    void readGeometry(KzXmlData *element, VarnelBeam *beam, Varnel *model);
    void readSections(KzXmlData *element, VarnelBeam *beam);
    void readMaterials(KzXmlData *element, VarnelBeam *beam);
    void readFoundations(KzXmlData *element, VarnelBeam *beam);
    void updateFoundations(VarnelBeam *beam);
    void updateSpanEnd(const char *key, double position, const Found::Foundation *foundation);
};

#endif
