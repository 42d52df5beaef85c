#include <limits>
#include <string>
#include <unordered_map>

#include "varnel/geometry/VarnelArea.h"
#include "varnel/geometry/VarnelBeamGeo.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/geometry/VarnelPlatePosition.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/loads/VarnelBeamLoad.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelGap.h"
#include "varnel/members/VarnelHole.h"
#include "varnel/members/VarnelJoint.h"
#include "varnel/members/VarnelLineBoundary.h"
#include "varnel/members/VarnelLineBoundaryData.h"
#include "varnel/members/VarnelLoadDistributionArea.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/model/FreeNames.h"
#include "varnel/model/Varnel.h"
#include "varnel/model/VarnelDefaultProperties.h"
#include "varnel/model/VarnelObjectGroup.h"
#include "varnel/model/VarnelSetupHelper.h"

namespace {

/// Raises a counter, which stays at the largest number.
int raised(int &counter) {
    if (counter < std::numeric_limits<int>::max()) ++counter;
    return counter;
}

/// System points that are members of groups. They are kept alive while the points are made anew; at its end,
/// also when an exception ends the run, each gives its place in the group to the new point at its
/// coordinates, or leaves the group. A view leaves alone what lives on in the model that it shares the groups
/// with.
class GroupedPoints {
  public:
    GroupedPoints(const std::list<VarnelObjectGroup *> &groups, varnel::PointList &points, bool view)
        : groups_(groups), points_(points) {
        points.expect(points.list().size());
        kept_.swap(points);
        if (groups.empty()) kept_.clear();
        for (VarnelPoint *point : kept_.list())
            if (!view || point->owners() == 1) former_.emplace(point, point);
    }
    GroupedPoints(const GroupedPoints &) = delete;
    GroupedPoints &operator=(const GroupedPoints &) = delete;
    ~GroupedPoints() {
        if (former_.empty()) return;
        for (VarnelObjectGroup *group : groups_) {
            if (!group) continue;
            group->update([this](VarnelObject *&member) {
                const auto former = former_.find(member);
                if (former == former_.end()) return true;
                member = points_.find(former->second->getCoor());
                return member != nullptr;
            });
        }
    }

  private:
    const std::list<VarnelObjectGroup *> &groups_;
    const varnel::PointList &points_;
    varnel::PointList kept_;
    std::unordered_map<const VarnelObject *, const VarnelPoint *> former_;
};

}  // namespace

/// One run of setupNumbers: its passes, in the order in which points are met first.
class Varnel::Numbering {
  public:
    Numbering(Varnel &model, VarnelSetupHelper &helper) : model_(model), helper_(helper) {}

    void plates();
    void loadDistributionAreas();
    void beams();
    void holes();
    void gaps();
    void pointBoundaries();
    void lineBoundaries();
    void resultPositions();
    void loads();
    void numbersOfLoadDistributionAreas();

  private:
    void edges(VarnelPlate &plate);
    varnel::FreeNames boundaryNames() const;
    // The hooks of the model are asked only about geometry that is there.
    void pointsOf(const VarnelArea *outline) {
        if (outline) model_.setupNumbersOfAreaPoints(outline);
    }
    void pointsOf(const VarnelLine *line) {
        if (line) model_.setupNumbersOfLinePoints(line);
    }

    Varnel &model_;
    VarnelSetupHelper &helper_;
    std::string edgeName_;
};

/// The names of line boundaries alone: names that edges of plates get do not enter, so all nameless edges of
/// a run are meant to get the same one.
varnel::FreeNames Varnel::Numbering::boundaryNames() const {
    varnel::FreeNames names(VarnelDefaultProperties::get()->getLBData().getName());
    names.useAll(model_.lineBoundaries_.list());
    return names;
}

void Varnel::Numbering::plates() {
    for (VarnelPlate *plate : model_.plates_.list()) {
        if (!plate) continue;
        plate->setNumber(raised(helper_.plateCount));
        edges(*plate);
        pointsOf(plate->getGeo());
    }
}

/// Boundaries beyond the fourth edge are meant to stay without number and name.
void Varnel::Numbering::edges(VarnelPlate &plate) {
    for (std::size_t i = 0; i < 4; ++i) {
        if (!plate.getBoundaryReference(i)) continue;
        VarnelLineBoundaryData *boundary = plate.getBoundary(i);
        boundary->setNumber(raised(helper_.lineBoundaryCount));
        if (!boundary->getName().empty()) continue;
        if (edgeName_.empty()) edgeName_ = boundaryNames().next();
        boundary->setName(edgeName_);
    }
}

void Varnel::Numbering::loadDistributionAreas() {
    for (const VarnelLoadDistributionArea *area : model_.loadDistributionAreas_.list())
        if (area) pointsOf(area->getGeo());
}

void Varnel::Numbering::beams() {
    for (VarnelBeam *beam : model_.beams_.list()) {
        if (!beam) continue;
        beam->setNumber(raised(helper_.beamCount));
        const VarnelBeamGeo *axis = beam->getGeo();
        if (!axis || axis->getNumLines() == 0) continue;
        model_.setupNumbersOfPoint(&beam->getStart());
        for (const VarnelJoint *joint : beam->getJoints())
            if (joint) model_.givePoint(beam->getPosition(joint->getPos()));
        model_.setupNumbersOfPoint(&beam->getEnd());
    }
}

void Varnel::Numbering::holes() {
    for (VarnelHole *hole : model_.holes_.list()) {
        if (!hole) continue;
        hole->setNumber(raised(helper_.holeCount));
        pointsOf(hole->getGeo());
    }
}

/// The points of gaps are meant to get no numbers.
void Varnel::Numbering::gaps() {
    for (VarnelGap *gap : model_.gaps_.list())
        if (gap) gap->setNumber(raised(helper_.gapCount));
}

void Varnel::Numbering::pointBoundaries() {
    for (VarnelPointBoundary *boundary : model_.pointBoundaries_.list()) {
        if (!boundary) continue;
        model_.setupNumbersOfPoint(boundary->getGeo());
        boundary->setNumber(raised(helper_.pointBoundaryCount));
    }
}

void Varnel::Numbering::lineBoundaries() {
    varnel::FreeNames names = boundaryNames();
    for (VarnelLineBoundary *boundary : model_.lineBoundaries_.list()) {
        if (!boundary) continue;
        if (boundary->getName().empty()) {
            boundary->getData().setName(names.next());
            names.use(boundary->getName());
        }
        boundary->setNumber(raised(helper_.lineBoundaryCount));
        pointsOf(boundary->getGeo());
    }
}

/// Looks first, so that results take the numbers of the structure.
void Varnel::Numbering::resultPositions() {
    for (const VarnelPlate *plate : model_.plates_.list()) {
        if (!plate) continue;
        for (const VarnelPlatePosition *position : plate->getResultPositions()) {
            if (!position) continue;
            if (const VarnelPoint *point = model_.findPoint(position->getCoor()))
                position->setNumber(point->getNumber());
            else
                model_.setupNumbersOfPoint(position);
        }
    }
}

/// The plates' own area loads are meant to get no numbers, nor the points of the beams of beam loads.
void Varnel::Numbering::loads() {
    for (VarnelPointLoad *load : model_.pointLoads_.list()) {
        if (!load) continue;
        load->setNumber(raised(helper_.pointLoadCount));
        model_.setupNumbersOfPoint(load->getPoint());
    }
    for (VarnelLineLoad *load : model_.lineLoads_.list()) {
        if (!load) continue;
        load->setNumber(raised(helper_.lineLoadCount));
        pointsOf(load->getLine());
    }
    for (VarnelAreaLoad *load : model_.areaLoads_.list()) {
        if (!load) continue;
        load->setNumber(raised(helper_.areaLoadCount));
        pointsOf(load->getArea());
    }
    for (VarnelBeamLoad *load : model_.beamLoads_.list())
        if (load) load->setNumber(raised(helper_.beamLoadCount));
}

/// These start at 1 in every model.
void Varnel::Numbering::numbersOfLoadDistributionAreas() {
    int count = 0;
    for (VarnelLoadDistributionArea *area : model_.loadDistributionAreas_.list())
        if (area) area->setNumber(raised(count));
}

void Varnel::setupNumbers(VarnelSetupHelper &helper) {
    const GroupedPoints grouped(objectGroups_.list(), points_, view_);
    Numbering numbering(*this, helper);
    numbering.plates();
    numbering.loadDistributionAreas();
    numbering.beams();
    numbering.holes();
    numbering.gaps();
    numbering.pointBoundaries();
    numbering.lineBoundaries();
    numbering.resultPositions();
    numbering.loads();
    numbering.numbersOfLoadDistributionAreas();
}

void Varnel::setupNumbersOfAreaPoints(const VarnelArea *area) {
    if (!area) return;
    const std::size_t edges = area->getNumLines();
    for (std::size_t i = 0; i < edges; ++i) setupNumbersOfPoint(&area->getPoint(i));
}

void Varnel::setupNumbersOfLinePoints(const VarnelLine *line) {
    if (!line) return;
    for (const VarnelPoint *end : {line->getStart(), line->getEnd()})
        if (end) setupNumbersOfPoint(end);
}

void Varnel::setupNumbersOfPoint(const VarnelPoint *point) {
    if (point) point->setNumber(givePoint(point->getCoor())->getNumber());
}

void Varnel::setupResultLocations() {
    for (const VarnelPlate *plate : plates_.list()) {
        if (!plate) continue;
        for (const VarnelPlatePosition *position : plate->getResultPositions())
            if (position) setupNumbersOfPoint(position);
    }
}
