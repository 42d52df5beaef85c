#ifndef VARNEL_MEMBERS_VARNELGAP_H
#define VARNEL_MEMBERS_VARNELGAP_H

#include <cstddef>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/Shared.h"

class VarnelArea;
class VarnelGapControl;

/// A numbered line of the model along which parts of the building are separated, kept as an area. Copies
/// share outline and control, which live until the last gap lets go. A missing outline is harmless.
class VARNEL_EXPORT VarnelGap {
  public:
    VarnelGap();
    /// Member by member: shares outline and control with the source.
    VarnelGap(const VarnelGap &other);
    VarnelGap &operator=(const VarnelGap &other);

    int getNumber() const { return number_; }
    void setNumber(int number) { number_ = number; }
    bool getActive() const { return active_; }

    VarnelGapControl *getControl() const { return control_.get(); }
    /// Takes over a control, null allowed, and gives up the former one.
    void setControl(VarnelGapControl *control);
    const VarnelArea *getPolyline() const { return polyline_.get(); }
    /// Takes over an outline, null allowed, and gives up the former one.
    void setPolyline(VarnelArea *polyline);

    /// Adds a vertex to the outline; makes the outline first if there is none.
    void add(const KzVector3D &vertex);
    /// 0 without an outline.
    std::size_t numberOfLines() const;
    /// Coordinates of a vertex; past the end those of the last line's end. The origin without an outline.
    KzVector3D getVertex(std::size_t index) const;

    /// Whether the gap or its outline is changed.
    virtual bool getChanged() const;
    virtual void setChanged(bool changed);

    virtual ~VarnelGap();  // declared last: hosts count on the slots above

  private:
    int number_ = 0;
    bool changed_ = true;
    bool active_ = true;
    varnel::Held<VarnelGapControl> control_;
    varnel::Held<VarnelArea> polyline_;
};

#endif
