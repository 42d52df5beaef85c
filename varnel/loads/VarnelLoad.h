#ifndef VARNEL_LOADS_VARNELLOAD_H
#define VARNEL_LOADS_VARNELLOAD_H

#include <string>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/SysBase/LoadcaseData.h"
#include "varnel/geometry/VarnelObject.h"
#include "varnel/geometry/VarnelPosition.h"
#include "varnel/loads/VarnelLoadData.h"

/// A load as a member of a model: the place it acts at. Its values are in a record of its own kind, which
/// each subclass holds and hands to this base.
class VARNEL_EXPORT VarnelLoad : public VarnelObject, public VarnelPosition {
  public:
    /// Whether this is a dead load, that is, load-case type 1. New loads are.
    bool isDead() const { return lcType_ == SysBase::LoadcaseData::DEAD; }

    /// Puts the load into a case (shared; null for none) and marks it as changed.
    void setLoadcase(SysBase::Loadcase *loadcase);
    SysBase::Loadcase *getLoadcase() const { return record().getLoadcase(); }
    /// Drops the reference to a case that is about to die; any other case stays. Marks no change.
    void forgetLoadcase(const SysBase::Loadcase *dying);

    /// The record's type; setting it marks no change.
    void setType(VarnelLoadData::loadType type) { getBaseData()->setType(type); }
    void setType(int type) { getBaseData()->setType(type); }
    VarnelLoadData::loadType getType() const { return record().getType(); }

    /// The load-case type, as the automation of load cases sorts loads; setting it marks no change.
    SysBase::LoadcaseData::Type getLcType() const { return lcType_; }
    void setLcType(SysBase::LoadcaseData::Type type) { lcType_ = type; }
    void setLcType(int type) { lcType_ = static_cast<SysBase::LoadcaseData::Type>(type); }

    /// Whether the load's case is that very object; null asks for loads without a case.
    bool isIn(const SysBase::Loadcase *loadcase) override { return record().getLoadcase() == loadcase; }
    virtual bool getChanged() const { return changed_; }
    virtual void setChanged(bool changed) { changed_ = changed; }
    /// Where the load acts on the whole, in global coordinates; zero without geometry.
    virtual KzVector3D getCOG() = 0;

  private:
    virtual VarnelLoadData *getBaseData() = 0;

  public:
    /// Whether all vectors of the record are null.
    virtual bool isNull() = 0;

    /// The record's name; setting it marks no change.
    void setName(const std::string &name) override { getBaseData()->setName(name); }
    const std::string &getName() const override { return record().getName(); }

  protected:
    VarnelLoad() = default;
    /// Takes number and load-case type. A copy is new to its model, so it is born changed.
    VarnelLoad(const VarnelLoad &other);
    /// Takes number and load-case type and marks this load as changed.
    VarnelLoad &operator=(const VarnelLoad &other);

  private:
    const VarnelLoadData &record() const;

    bool changed_ = false;
    SysBase::LoadcaseData::Type lcType_ = SysBase::LoadcaseData::DEAD;
};

#endif
