#include "varnel/exchange/StockMaterials.h"

#include <unordered_set>

#include "varnel/contracts/KzMaterial.h"
#include "varnel/contracts/KzMaterialManager.h"
#include "varnel/contracts/SysBase/ConstructionStage.h"
#include "varnel/members/VarnelAttributeArea.h"
#include "varnel/model/Varnel.h"
#include "varnel/process/SubSystemWalk.h"
#include "varnel/process/VarnelManager.h"
#include "varnel/stages/VarnelBeamState.h"
#include "varnel/stages/VarnelConstructionStage.h"
#include "varnel/stages/VarnelObjectStateVisitor.h"
#include "varnel/stages/VarnelPlateState.h"

namespace varnel {

namespace {

/// Collects what is used and is not found by its name in the project.
class Collector : public VarnelObjectStateVisitor {
  public:
    explicit Collector(KzMaterialManager &project) : project_(project) {}

    void add(KzMaterial *material) {
        if (!material || project_.findMaterialToName(material->getName(), 0)) return;
        if (known_.insert(material->getName()).second) materials_.push_back(material);
    }
    const std::vector<KzMaterial *> &materials() const { return materials_; }

    void visit(VarnelLineLoadState *) override {}
    void visit(VarnelPointLoadState *) override {}
    void visit(VarnelPointBoundaryState *) override {}
    void visit(VarnelBeamState *state) override { add(state->getMaterial()); }
    void visit(VarnelPlateState *state) override { add(state->getMaterial()); }

  private:
    KzMaterialManager &project_;
    std::unordered_set<std::string> known_;
    std::vector<KzMaterial *> materials_;
};

}  // namespace

std::vector<KzMaterial *> usedStockMaterials(const VarnelManager &manager) {
    Collector collector(*manager.getMaterialManager());
    if (manager.getSubSystems().empty()) return {};
    eachSubSystem(manager.getSubSystems().front(), [&collector](const VarnelSubSystem &subSystem) {
        const Varnel *model = subSystem.getDatabase();
        if (!model) return;
        for (const VarnelAttributeArea *area : model->getAttributeAreas())
            if (area) collector.add(area->getMaterial(0));
        for (SysBase::ConstructionStage *stage : subSystem.getConstructionStages()) {
            const auto *staged = dynamic_cast<VarnelConstructionStage *>(stage);
            if (!staged) continue;
            for (VarnelObjectState *state : staged->getObjectStates())
                if (state) state->getVisited(&collector);
        }
    });
    return collector.materials();
}

}  // namespace varnel
