#ifndef VARNEL_MODEL_VARNELDEFAULTPROPERTIES_H
#define VARNEL_MODEL_VARNELDEFAULTPROPERTIES_H

#include <memory>

#include "varnel/contracts/Export.h"

class KzMaterial;
class SDBSection;
class VarnelAreaLoad;
class VarnelBeamProperties;
class VarnelHole;
class VarnelLineBoundaryData;
class VarnelLineLoadData;
class VarnelLoadDistributionArea;
class VarnelManager;
class VarnelPlateProperties;
class VarnelPointBoundaryData;
class VarnelPointLoad;
namespace Found {
class Foundation;
}
namespace SysBase {
class Loadcase;
}

/// The templates of this process: what a new plate, beam, support or load is to look like. One instance,
/// which outlives every manager; its first use may come from any thread.
class VARNEL_EXPORT VarnelDefaultProperties {
  public:
    static VarnelDefaultProperties *get();
    VarnelDefaultProperties(const VarnelDefaultProperties &) = delete;
    /// Makes both share one set of records.
    VarnelDefaultProperties &operator=(const VarnelDefaultProperties &other);

    // The setters assign to the record, so a reference from a getter sees the new values.

    const VarnelLineBoundaryData &getLBData() const;
    void setLBData(const VarnelLineBoundaryData &data);
    const VarnelPlateProperties &getPlateProp() const;
    void setPlateProp(const VarnelPlateProperties &properties);
    const VarnelLineLoadData &getLineLoad() const;
    void setLineLoad(const VarnelLineLoadData &data);
    const VarnelPointLoad &getPointLoad() const;
    void setPointLoad(const VarnelPointLoad &load);
    const VarnelAreaLoad &getAreaLoad() const;
    void setAreaLoad(const VarnelAreaLoad &load);
    const VarnelBeamProperties &getBeamProp() const;
    void setBeamProp(const VarnelBeamProperties &properties);
    const VarnelPointBoundaryData &getPBData() const;
    void setPBData(const VarnelPointBoundaryData &data);
    const VarnelHole &getHole() const;
    void setHole(const VarnelHole &hole);
    const VarnelLoadDistributionArea &getLDA() const;
    void setLDA(const VarnelLoadDistributionArea &area);

    /// Whether the default beam or plate is of the material.
    bool check(const KzMaterial *material) const;
    /// Whether it is the first section of the default beam; the second one is meant not to count.
    bool check(const SDBSection *section) const;
    /// Whether the default plate or beam stands on the foundation.
    bool check(const Found::Foundation *foundation) const;

    /// Lets the manager's materials, sections and foundations ask here whether they are in use. The host must
    /// take that back before the manager dies; nobody else does.
    void addToAsUser(VarnelManager *manager);
    void removeAsUser(VarnelManager *manager);

    /// Clears every pointer to a thing that the dying manager owns: materials, sections, foundations, meshes,
    /// reinforcement lines, load cases.
    void forget(const VarnelManager &dying);
    /// Clears every pointer to a load case that is about to die.
    void forget(const SysBase::Loadcase *dying);

  private:
    class CImpl;

    VarnelDefaultProperties();
    ~VarnelDefaultProperties();

    std::shared_ptr<CImpl> impl_;
    std::shared_ptr<VarnelLineBoundaryData> lbData_;
    std::shared_ptr<VarnelPlateProperties> plateProp_;
    std::shared_ptr<VarnelLineLoadData> lineLoad_;
    std::shared_ptr<VarnelPointLoad> pointLoad_;
    std::shared_ptr<VarnelAreaLoad> areaLoad_;
    std::shared_ptr<VarnelBeamProperties> beamProp_;
    std::shared_ptr<VarnelPointBoundaryData> pbData_;
    std::shared_ptr<VarnelHole> hole_;
    std::shared_ptr<VarnelLoadDistributionArea> lda_;
};

#endif
