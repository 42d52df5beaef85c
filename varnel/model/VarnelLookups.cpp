#include <algorithm>
#include <limits>

#include "varnel/geometry/VarnelArea.h"
#include "varnel/geometry/VarnelBeamGeo.h"
#include "varnel/geometry/VarnelLine.h"
#include "varnel/geometry/VarnelPoint.h"
#include "varnel/loads/VarnelAreaLoad.h"
#include "varnel/loads/VarnelBeamLoad.h"
#include "varnel/loads/VarnelLineLoad.h"
#include "varnel/loads/VarnelPointLoad.h"
#include "varnel/members/VarnelAttributeArea.h"
#include "varnel/members/VarnelBeam.h"
#include "varnel/members/VarnelHole.h"
#include "varnel/members/VarnelLineBoundary.h"
#include "varnel/members/VarnelLineBoundaryData.h"
#include "varnel/members/VarnelLoadDistributionArea.h"
#include "varnel/members/VarnelPlate.h"
#include "varnel/members/VarnelPointBoundary.h"
#include "varnel/model/Varnel.h"
#include "varnel/model/VarnelObjectGroup.h"

namespace {

/// The first object that the test accepts, or null; null entries are skipped.
template <class T, class Test>
T *findFirst(const std::list<T *> &list, Test test) {
    for (T *object : list)
        if (object && test(*object)) return object;
    return nullptr;
}

template <class T>
T *findName(const std::list<T *> &list, const std::string &name) {
    return findFirst(list, [&name](const T &object) { return object.getName() == name; });
}

template <class T>
T *findLoadName(const std::list<T *> &list, const std::string &name, bool dead) {
    return findFirst(list, [&](const T &load) { return load.isDead() == dead && load.getName() == name; });
}

/// The first object whose outline or axis equals the geometry; null for a null geometry.
template <class T, class Geometry>
T *findGeo(const std::list<T *> &list, const Geometry *geometry) {
    return findFirst(list, [geometry](const T &object) {
        const Geometry *own = object.getGeo();
        return own && geometry && *own == *geometry;
    });
}

template <class List>
int lengthOf(const List &list) {
    constexpr auto highest = static_cast<std::size_t>(std::numeric_limits<int>::max());
    return static_cast<int>(std::min(list.size(), highest));
}

}  // namespace

int Varnel::getNumberOfPoints() const {
    return lengthOf(points_.list());
}

int Varnel::getNumberOfPlates() const {
    return lengthOf(plates_.list());
}

int Varnel::getNumberOfBeams() const {
    return lengthOf(beams_.list());
}

int Varnel::getNumberOfHoles() const {
    return lengthOf(holes_.list());
}

int Varnel::getNumberOfPointLoads() const {
    return lengthOf(pointLoads_.list());
}

int Varnel::getNumberOfLineLoads() const {
    return lengthOf(lineLoads_.list());
}

int Varnel::getNumberOfAreaLoads() const {
    return lengthOf(areaLoads_.list());
}

int Varnel::getNumberOfBeamLoads() const {
    return lengthOf(beamLoads_.list());
}

int Varnel::getNumberOfPointBoundaries() const {
    return lengthOf(pointBoundaries_.list());
}

int Varnel::getNumberOfLineBoundaries() const {
    return lengthOf(lineBoundaries_.list());
}

template <>
VarnelBeam *Varnel::findToName(const std::string &name) const {
    return findBeamToName(name);
}

template <>
VarnelLineBoundaryData *Varnel::findToName(const std::string &name) const {
    return findLineBoundaryToName(name);
}

template <>
VarnelObjectGroup *Varnel::findToName(const std::string &name) const {
    return findObjectGroupToName(name);
}

template <>
VarnelPlate *Varnel::findToName(const std::string &name) const {
    return findPlateToName(name);
}

template <>
VarnelPointBoundary *Varnel::findToName(const std::string &name) const {
    return findPointBoundaryToName(name);
}

template <>
VarnelAreaLoad *Varnel::findToNumber(int number) const {
    return findAreaLoadToNumber(number);
}

template <>
VarnelAttributeArea *Varnel::findToNumber(int number) const {
    return findAttributeAreaToNumber(number);
}

template <>
VarnelBeam *Varnel::findToNumber(int number) const {
    return findBeamToNumber(number);
}

template <>
VarnelBeamLoad *Varnel::findToNumber(int number) const {
    return findBeamLoadToNumber(number);
}

template <>
VarnelHole *Varnel::findToNumber(int number) const {
    return findHoleToNumber(number);
}

template <>
VarnelLineBoundary *Varnel::findToNumber(int number) const {
    return findLineBoundaryToNumber(number);
}

template <>
VarnelLineLoad *Varnel::findToNumber(int number) const {
    return findLineLoadToNumber(number);
}

template <>
VarnelPlate *Varnel::findToNumber(int number) const {
    return findPlateToNumber(number);
}

template <>
VarnelPointBoundary *Varnel::findToNumber(int number) const {
    return findPointBoundaryToNumber(number);
}

template <>
VarnelPointLoad *Varnel::findToNumber(int number) const {
    return findPointLoadToNumber(number);
}

VarnelBeam *Varnel::findBeamToName(const std::string &name) const {
    return findName(beams_.list(), name);
}

VarnelPlate *Varnel::findPlateToName(const std::string &name) const {
    return findName(plates_.list(), name);
}

VarnelPointBoundary *Varnel::findPointBoundaryToName(const std::string &name) const {
    return findName(pointBoundaries_.list(), name);
}

VarnelObjectGroup *Varnel::findObjectGroupToName(const std::string &name) const {
    return objectGroups_.find(name);
}

VarnelLineBoundaryData *Varnel::findLineBoundaryToName(const std::string &name) const {
    return findName(lineBoundaryDatas_, name);
}

VarnelPointLoad *Varnel::findPointLoadToName(const std::string &name, bool dead) const {
    return findLoadName(pointLoads_.list(), name, dead);
}

VarnelLineLoad *Varnel::findLineLoadToName(const std::string &name, bool dead) const {
    return findLoadName(lineLoads_.list(), name, dead);
}

VarnelAreaLoad *Varnel::findAreaLoadToName(const std::string &name, bool dead) const {
    return findLoadName(areaLoads_.list(), name, dead);
}

VarnelBeamLoad *Varnel::findBeamLoadToName(const std::string &name, bool dead) const {
    return findLoadName(beamLoads_.list(), name, dead);
}

VarnelPoint *Varnel::findPointToNumber(int number) const {
    return points_.findToNumber(number);
}

VarnelPlate *Varnel::findPlateToNumber(int number) const {
    return plates_.find(number);
}

VarnelBeam *Varnel::findBeamToNumber(int number) const {
    return beams_.find(number);
}

VarnelAttributeArea *Varnel::findAttributeAreaToNumber(int number) const {
    return attributeAreas_.find(number);
}

VarnelPointBoundary *Varnel::findPointBoundaryToNumber(int number) const {
    return pointBoundaries_.find(number);
}

VarnelPointLoad *Varnel::findPointLoadToNumber(int number) const {
    return pointLoads_.find(number);
}

VarnelLineLoad *Varnel::findLineLoadToNumber(int number) const {
    return lineLoads_.find(number);
}

VarnelAreaLoad *Varnel::findAreaLoadToNumber(int number) const {
    return areaLoads_.find(number);
}

VarnelBeamLoad *Varnel::findBeamLoadToNumber(int number) const {
    return beamLoads_.find(number);
}

VarnelHole *Varnel::findHoleToNumber(int number) const {
    return holes_.find(number);
}

VarnelLineBoundary *Varnel::findLineBoundaryToNumber(int number) const {
    return lineBoundaries_.find(number);
}

VarnelPoint *Varnel::findPoint(const KzVector3D &coordinates) const {
    return points_.find(coordinates);
}

VarnelPointLoad *Varnel::findPointLoad(const KzVector3D &coordinates, bool dead) const {
    return findFirst(pointLoads_.list(), [&](const VarnelPointLoad &load) {
        return load.isDead() == dead && load.getCoor() == coordinates;
    });
}

VarnelPlate *Varnel::findPlateToCoor(const KzVector3D &coordinates) const {
    return findFirst(plates_.list(), [&coordinates](const VarnelPlate &plate) {
        const VarnelArea *area = plate.getGeo();
        return area && area->checkPointOn(coordinates);
    });
}

VarnelPlate *Varnel::findPlateToGeo(const VarnelArea *area) const {
    return findGeo(plates_.list(), area);
}

VarnelHole *Varnel::findHoleToGeo(const VarnelArea *area) const {
    return findGeo(holes_.list(), area);
}

VarnelLoadDistributionArea *Varnel::findLoadDistributionAreatoArea(const VarnelArea *area) const {
    return findGeo(loadDistributionAreas_.list(), area);
}

VarnelBeam *Varnel::findBeamToGeo(const VarnelBeamGeo *geometry) const {
    return findGeo(beams_.list(), geometry);
}

VarnelAreaLoad *Varnel::findAreaLoadToAreaAndLC(const VarnelArea *area,
                                                const SysBase::Loadcase *loadcase) const {
    return findFirst(areaLoads_.list(), [=](VarnelAreaLoad &load) {
        const VarnelArea *own = load.getArea();
        return load.isIn(loadcase) && own && area && *own == *area;
    });
}

VarnelLineLoad *Varnel::findLineLoadToLineAndLC(const VarnelLine *line,
                                                const SysBase::Loadcase *loadcase) const {
    return findFirst(lineLoads_.list(), [=](VarnelLineLoad &load) {
        const VarnelLine *own = load.getLine();
        return load.isIn(loadcase) && own && line && *line == *own;
    });
}

VarnelPointLoad *Varnel::findPointLoadToPointAndLC(const VarnelPoint *point,
                                                   const SysBase::Loadcase *loadcase) const {
    return findFirst(pointLoads_.list(), [=](VarnelPointLoad &load) {
        return load.isIn(loadcase) && point && *load.getPoint() == *point;
    });
}
