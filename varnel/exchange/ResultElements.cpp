// Results below "BEAM", "PBOUND", "LBOUND" and "EDGE": output for other readers, never read back.

#include <list>
#include <map>
#include <string>
#include <vector>

#include "varnel/contracts/KzXmlTree.h"
#include "varnel/contracts/SysBase/BeamDeformationsLocation.h"
#include "varnel/contracts/SysBase/BeamResultState.h"
#include "varnel/contracts/SysBase/BeamStressResultantsLocation.h"
#include "varnel/contracts/SysBase/Loadcase.h"
#include "varnel/exchange/VarnelExchangeXml.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelLineBoundary.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/model/Varnel.h"
#include "varnel/model/VarnelSubSystem.h"
#include "varnel/process/VarnelDesigner.h"
#include "varnel/process/VarnelManager.h"
#include "varnel/results/VarnelLineResult.h"
#include "varnel/results/VarnelPointResultData.h"

namespace {

using SupportResults = std::map<VarnelPointBoundary *, VarnelPointResultData>;

const std::list<SysBase::Loadcase *> &loadcasesOf(const VarnelManager *manager) {
    static const std::list<SysBase::Loadcase *> none;
    return manager ? manager->getLoadcases() : none;
}

void updateSupport(VarnelExchangeXml &exchange, const VarnelPointResultData &result) {
    exchange.open("SUP");
    exchange.setAttribute("FX", result.getFx());
    exchange.setAttribute("FY", result.getFy());
    exchange.setAttribute("FZ", result.getFz());
    exchange.setAttribute("MX", result.getMx());
    exchange.setAttribute("MY", result.getMy());
    exchange.setAttribute("MZ", result.getMz());
    exchange.close();
}

}  // namespace

void VarnelExchangeXml::updateResults(VarnelManager *manager) {
    const RootCursor guard(tree());
    setManager(manager);
    if (manager) updateResultsToSubSystem(manager->getCurrentSubSystem());
}

void VarnelExchangeXml::updateResultsToSubSystem(VarnelSubSystem *subSystem) {
    if (!subSystem) return;
    openToAttribute("SUBSYSTEM", "NAME", subSystem->getName());
    if (Varnel *model = subSystem->getDatabase()) {
        updateBeamResults(model);
        updatePointBoundaryResults(model);
        updateLineBoundaryResults(model);
    }
    if (!subSystem->getChildren().empty()) updateSubSystemResults(subSystem->getChildren());
    close();
}

void VarnelExchangeXml::updateSubSystemResults(const std::list<VarnelSubSystem *> &children) {
    open("SUBSYSTEMS");
    for (VarnelSubSystem *child : children)
        if (child) updateResultsToSubSystem(child);
    close();
}

void VarnelExchangeXml::updateBeamResults(Varnel *model) {
    if (!model) return;
    const auto &loadcases = loadcasesOf(getManager());
    open("BEAMS");
    for (VarnelBeam *beam : model->getBeams()) {
        if (!beam) continue;
        openToAttribute("BEAM", "NUMBER", std::to_string(beam->getNumber()));
        if (!loadcases.empty()) {
            open("LOADCASES");
            flush();
            for (SysBase::Loadcase *loadcase : loadcases) {
                openToAttribute("LOADCASE", "NUMBER", loadcase->getNumber());
                updateBeamDisplacements(beam, loadcase);
                updateBeamStresses(beam, loadcase);
                close();
            }
            close();
        }
        close();
    }
    close();
}

void VarnelExchangeXml::updateBeamDisplacements(VarnelBeam *beam, SysBase::Loadcase *loadcase) {
    if (!beam || !loadcase) return;
    open("DISPS");
    flush();
    if (const SysBase::BeamResultState *state = beam->findResultState(loadcase->getNumber())) {
        for (const SysBase::BeamDeformationsLocation *location : state->getDeformationsLocations()) {
            openToAttribute("DISP", "POS", location->getPos());
            const KzVector3D &displacement = location->getDisplacement();
            setAttribute("DX", displacement.getX());
            setAttribute("DY", displacement.getY());
            setAttribute("DZ", displacement.getZ());
            close();
        }
    }
    close();
}

void VarnelExchangeXml::updateBeamStresses(VarnelBeam *beam, SysBase::Loadcase *loadcase) {
    if (!beam || !loadcase) return;
    open("STRESS");
    flush();
    if (const SysBase::BeamResultState *state = beam->findResultState(loadcase->getNumber())) {
        for (const SysBase::BeamStressResultantsLocation *location : state->getStressResultantsLocations()) {
            openToAttribute("STRESS", "POS", location->getPos());  // children bear the name of their list
            setAttribute("MY", location->getMy());
            close();
        }
    }
    close();
}

void VarnelExchangeXml::updatePointBoundaryResults(Varnel *model) {
    if (!model) return;
    const auto &loadcases = loadcasesOf(getManager());
    // Asking makes the designer, which a project without load cases does not need.
    VarnelDesigner *designer = loadcases.empty() ? nullptr : getManager()->getDesigner();
    open("PBOUNDS");
    // All cases are asked, primary or not; without a designer every support gets a record of zeros.
    std::vector<SupportResults> results;
    for (SysBase::Loadcase *loadcase : loadcases)
        results.push_back(designer ? designer->getPointBoundaryResults(loadcase) : SupportResults());
    for (VarnelPointBoundary *boundary : model->getPointBoundaries()) {
        if (!boundary) continue;
        openToAttribute("PBOUND", "NUMBER", boundary->getNumber());
        if (loadcases.empty()) {
            remove("LOADCASES");
        } else {
            open("LOADCASES");
            flush();
            std::size_t index = 0;
            for (const SysBase::Loadcase *loadcase : loadcases) {
                SupportResults &ofCase = results[index++];  // cases that are not primary count, too
                if (!loadcase->isPrimary()) continue;
                openToAttribute("LOADCASE", "NUMBER", loadcase->getNumber());
                updateSupport(*this, ofCase[boundary]);
                close();
            }
            close();
        }
        close();
    }
    close();
}

void VarnelExchangeXml::updateLineBoundaryResults(Varnel *model) {
    if (!model) return;
    open("LBOUNDS");
    for (VarnelLineBoundary *boundary : model->getLineBoundaries()) {
        if (!boundary) continue;
        openToAttribute("LBOUND", "NUMBER", boundary->getNumber());
        updateOneLineBoundaryResult(model, &boundary->getData());
        close();
    }
    close();
}

void VarnelExchangeXml::updateOneLineBoundaryResult(Varnel *, VarnelLineBoundaryData *boundary) {
    const auto &loadcases = loadcasesOf(getManager());
    if (loadcases.empty()) {
        remove("LOADCASES");
        return;
    }
    VarnelDesigner *designer = getManager()->getDesigner();
    open("LOADCASES");
    flush();
    for (SysBase::Loadcase *loadcase : loadcases) {
        VarnelLineResult result;
        if (designer) designer->getLineBoundaryResult(loadcase, boundary, result);
        openToAttribute("LOADCASE", "NUMBER", loadcase->getNumber());
        int index = 0;
        for (const VarnelLineResultData &support : result.getSupports()) {
            openToAttribute("LOC", "IND", index++);
            setAttribute("POS", support.getPos());
            setAttribute("FZ", support.getMaxFz());
            close();
        }
        close();
    }
    close();
}
