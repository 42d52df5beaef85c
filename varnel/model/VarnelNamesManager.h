#ifndef VARNEL_MODEL_VARNELNAMESMANAGER_H
#define VARNEL_MODEL_VARNELNAMESMANAGER_H

#include <string>
#include <vector>

#include "varnel/contracts/Export.h"

class Varnel;
class VarnelPlateProperties;

/// Proposes names that are free in one model, and tests names for use. A proposed name is the default
/// record's name followed by the lowest free number from 1. Nothing is kept between calls: until an object
/// takes the name it is proposed again. The model is shared; a null one has no names in use.
class VARNEL_EXPORT VarnelNamesManager {
  public:
    explicit VarnelNamesManager(Varnel *model);
    VarnelNamesManager(const VarnelNamesManager &other) = default;
    VarnelNamesManager &operator=(const VarnelNamesManager &other) = default;

    /// Free in the model's look-up of plate names, which also knows the names of removed plates.
    std::string nextPlate() const;
    /// Free among the plates that are there; nothing if `out` is null.
    void nextPlateP(std::string *out) const;
    std::string nextHole() const;
    /// For load distribution areas.
    std::string nextLDA() const;
    std::string nextPointBoundary() const;
    /// Free among point, line and area loads; beam loads are meant to be left out.
    std::string nextLoad() const;
    std::string nextBeam() const;
    std::string nextObjectGroup() const;

    /// Among the plates that are there.
    bool findPlate(const std::string &name) const;
    bool findHole(const std::string &name) const;
    bool findLDA(const std::string &name) const;
    bool findPointBoundary(const std::string &name) const;
    bool findLoad(const std::string &name) const;
    bool findBeam(const std::string &name) const;
    bool findObjectGroup(const std::string &name) const;

    /// Names that a host wants to remember. The proposals take no notice of them.
    void addTemporaryLineBoundary(const std::string &name);
    void removeTemporaryLineBoundary(const std::string &name);
    void resetTemporaryLineBoundary();

    /// Free among the line boundaries; boundaries of plate edges do not count.
    virtual std::string nextLineBoundary();
    virtual bool findLineBoundary(const std::string &name);

  private:
    Varnel *model_;
    std::vector<std::string> temporaryLineBoundaries_;
    const VarnelPlateProperties *plateProperties_;
};

#endif
