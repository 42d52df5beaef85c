#ifndef VARNEL_GEOMETRY_VARNELBASE_H
#define VARNEL_GEOMETRY_VARNELBASE_H

#include <memory>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzMatrix44.h"

/// An optional local frame: most objects need none, so the matrix exists only once something was set.
/// Copying copies the matrix; a copy takes the change flag over as it is.
class VARNEL_EXPORT VarnelBase {
  public:
    VarnelBase() noexcept = default;
    VarnelBase(const VarnelBase &other);
    /// Takes over the frame or its absence. Marks a change whatever the source's flag is.
    VarnelBase &operator=(const VarnelBase &other);
    ~VarnelBase() = default;

    bool getChanged() const noexcept { return changed_; }
    void setChanged(bool changed) noexcept { changed_ = changed; }
    /// The frame, or null as long as none is needed.
    const KzMatrix44 *getMatrix() const noexcept { return matrix_.get(); }

    /// Angle (rad) of the x axis about the local y axis (1) or z axis (2); 0.0 for any other axis and
    /// without a frame.
    double getAngle(int axis) const noexcept;
    /// Turns a fresh identity frame by `angle` (rad) about the local y axis (1) or z axis (2); any other
    /// axis leaves the identity. An angle of exactly 0.0 drops the frame with its offset. Marks a change.
    void setAngle(double angle, int axis);
    /// Copies the frame. Marks a change.
    void setMatrix(const KzMatrix44 &matrix);
    /// Origin of the frame; zero without one.
    KzVector3D getOffset() const noexcept;
    /// Sets the origin, of an identity frame if there was none. Marks no change, unlike the other setters.
    void setOffset(const KzVector3D &offset);

  private:
    bool changed_ = true;
    std::unique_ptr<KzMatrix44> matrix_;
};

#endif
