#ifndef VARNEL_MEMBERS_VARNELPLATEPROPERTIES_H
#define VARNEL_MEMBERS_VARNELPLATEPROPERTIES_H

#include <memory>
#include <string>

#include "varnel/members/VarnelPlate.h"

/// The properties of a plate as a record of its own. Setters mark no change.
class VARNEL_EXPORT VarnelPlateProperties {
  public:
    VarnelPlateProperties();
    /// All values; the design data into a record of its own.
    VarnelPlateProperties(const VarnelPlateProperties &other);
    VarnelPlateProperties &operator=(const VarnelPlateProperties &other);
    ~VarnelPlateProperties();

    /// In m.
    double getThick() const { return thick_; }
    void setThick(double thickness) { thick_ = thickness; }
    /// Element sizes and their lower limit (m).
    double getMeshSizeX() const { return meshSizeX_; }
    void setMeshSizeX(double size) { meshSizeX_ = size; }
    double getMeshSizeY() const { return meshSizeY_; }
    void setMeshSizeY(double size) { meshSizeY_ = size; }
    double getMinMeshSize() const { return minMeshSize_; }
    void setMinMeshSize(double size) { minMeshSize_ = size; }
    /// Whether the mesher chooses the size.
    bool getAutoMeshSize() const { return autoMeshSize_; }
    void setAutoMeshSize(bool automatic) { autoMeshSize_ = automatic; }
    VarnelPlate::ElementType getElementType() const { return elementType_; }
    void setElementType(VarnelPlate::ElementType type) { elementType_ = type; }
    void setElementType(int type) { elementType_ = static_cast<VarnelPlate::ElementType>(type); }
    VarnelPlate::MeshType getMeshType() const { return meshType_; }
    void setMeshType(VarnelPlate::MeshType type) { meshType_ = type; }
    void setMeshType(int type) { meshType_ = static_cast<VarnelPlate::MeshType>(type); }
    const std::string &getName() const { return name_; }
    void setName(const std::string &name) { name_ = name; }
    double getMeshAngle() const { return meshAngle_; }
    void setMeshAngle(double angle) { meshAngle_ = angle; }
    /// Shared; null for none.
    KzMaterial *getMaterial() const { return material_; }
    void setMaterial(KzMaterial *material) { material_ = material; }
    Found::Foundation *getFoundation() const { return foundation_; }
    void setFoundation(Found::Foundation *foundation) { foundation_ = foundation; }
    /// Owned; null for none. Setting copies the record, null removes it.
    VarnelDesignData *getDesign() const { return design_.get(); }
    void setDesign(const VarnelDesignData *design);

  private:
    double thick_ = 0.2;
    double meshSizeX_ = 0.5;
    double meshSizeY_ = 0.5;
    double minMeshSize_ = 0.0;
    bool autoMeshSize_ = true;
    VarnelPlate::ElementType elementType_ = VarnelPlate::DefaultElement;
    VarnelPlate::MeshType meshType_ = VarnelPlate::DefaultMesh;
    std::string name_;
    double meshAngle_ = 120.0;
    KzMaterial *material_ = nullptr;
    Found::Foundation *foundation_ = nullptr;
    std::unique_ptr<VarnelDesignData> design_;
};

#endif
