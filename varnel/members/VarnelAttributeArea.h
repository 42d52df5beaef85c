#ifndef VARNEL_MEMBERS_VARNELATTRIBUTEAREA_H
#define VARNEL_MEMBERS_VARNELATTRIBUTEAREA_H

#include <string>

#include "varnel/members/VarnelPolyObject.h"

class KzConcrete;
class KzMaterial;

/// A region of a plate with a thickness, mesh size and material of its own. It keeps a change flag that no
/// question reads: only a changed outline shows.
class VARNEL_EXPORT VarnelAttributeArea : public VarnelPolyObject {
  public:
    VarnelAttributeArea() = default;
    /// All values and an outline of its own; number 0.
    VarnelAttributeArea(const VarnelAttributeArea &other) = default;
    /// All values and the number; shares the outline.
    VarnelAttributeArea &operator=(const VarnelAttributeArea &other) = default;
    ~VarnelAttributeArea() override;

    /// In m; setting touches no flag.
    double getThickness() const { return thickness_; }
    void setThickness(double thickness) { thickness_ = thickness; }
    /// In m.
    double getMeshSize() const { return meshSize_; }
    void setMeshSize(double size);
    /// The material, shared; the number is ignored.
    KzMaterial *getMaterial(int) const { return material_; }
    void setMaterial(KzMaterial *material, int index);
    /// The material if it is a concrete, else null.
    KzConcrete *getConcrete(int index) const;

    /// 0: no visitor is called.
    int getVisited(VarnelObjectVisitor *visitor) override;
    /// Touches no flag.
    void setName(const std::string &name) override { name_ = name; }
    const std::string &getName() const override { return name_; }

  private:
    bool changed_ = true;
    double thickness_ = 0.2;
    double meshSize_ = 0.5;
    std::string name_;
    KzMaterial *material_ = nullptr;
};

#endif
