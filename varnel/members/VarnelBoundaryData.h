#ifndef VARNEL_MEMBERS_VARNELBOUNDARYDATA_H
#define VARNEL_MEMBERS_VARNELBOUNDARYDATA_H

#include <string>
#include <vector>

#include "varnel/contracts/Export.h"
#include "varnel/contracts/KzVector3D.h"
#include "varnel/contracts/Shared.h"
#include "varnel/members/VarnelBoundaryStiffnessData.h"

/// What point and line supports share: fixed degrees of freedom, springs, name and the transfer of the own
/// weight of the column or wall below. Copies of this class alone share the springs; the supports derived
/// from it copy them.
class VARNEL_EXPORT VarnelBoundaryData {
  public:
    explicit VarnelBoundaryData(int dof = 0) : dof_(dof) {}

    /// Owned, shared with member-wise copies; null without springs.
    VarnelBoundaryStiffnessData *getStiffnessData() const { return stiffnessData_.get(); }
    /// Takes over and marks no change; null removes the springs.
    void setStiffnessData(VarnelBoundaryStiffnessData *data) { stiffnessData_.reset(data); }
    const std::string &getName() const { return name_; }
    void setName(const std::string &name) { name_ = name; }
    /// Height of the column or wall below (m) and its specific weight (kN/m3), for its own weight.
    double getHeight() const { return height_; }
    void setHeight(double height) { height_ = height; }
    double getSpecificWeight() const { return specificWeight_; }
    void setSpecificWeight(double weight) { specificWeight_ = weight; }
    /// Whether that own weight passes on to the support.
    bool doTransferOwnWeight() const { return transferOwnWeight_; }
    void setTransferOwnWeight(bool transfer) { transferOwnWeight_ = transfer; }
    /// Bit mask of the fixed degrees of freedom; setting it marks a change.
    int getDof() const { return dof_; }
    void setDof(int dof) {
        dof_ = dof;
        changed_ = true;
    }
    bool getChanged() const { return changed_; }
    void setChanged(bool changed) { changed_ = changed; }

    /// Six values: x, y, z, about x, y, z. If none exceeds 0.001 the springs go; else the first three and, if
    /// there are six, the last three are stored, and what is not covered keeps its value. Marks a change.
    void setStiffness(const std::vector<double> &values);
    /// Six values, zero without springs.
    std::vector<double> getStiffness() const;
    /// Removes the springs and marks a change.
    void resetStiffness();
    /// Mark no change.
    void setDispStiff(const KzVector3D &stiffness);
    void setRotStiff(const KzVector3D &stiffness);

  protected:
    /// All values; springs of its own. Marks a change.
    void copy(const VarnelBoundaryData &other);

  private:
    void checkStiffnessData();

    varnel::Held<VarnelBoundaryStiffnessData> stiffnessData_;
    std::string name_;
    double height_ = 3.0;
    double specificWeight_ = 25.0;
    bool transferOwnWeight_ = false;
    int dof_;
    bool changed_ = false;
};

#endif
