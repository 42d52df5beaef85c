#include "tests/support/RandomModel.h"

#include <utility>

#include "varnel/contracts/Design/ShearData.h"
#include "varnel/varnel.h"

// Arguments that draw from chance stand in braces, which keep their order, or before the call.

namespace varnel::test {

namespace {

/// A member of a list, or null if the list is empty.
template <class T>
T *oneOf(Random &random, const std::list<T *> &list) {
    if (list.empty()) return nullptr;
    auto place = list.begin();
    std::advance(place, random.below(static_cast<int>(list.size())));
    return *place;
}

template <class Manager>
SDBSectionLine *sectionOf(Manager *manager, const char *name) {
    return dynamic_cast<SDBSectionLine *>(manager->findSectionToName(name));
}

}  // namespace

RandomModel::RandomModel(VarnelManager &manager, unsigned seed, bool exact)
    : manager_(manager), random_(seed), exact_(exact) {}

void RandomModel::fill() {
    setSwitches();
    addResources();
    addLoadcases();
    fillSubSystem(*manager_.getCurrentSubSystem(), 0);
    addStages();
}

void RandomModel::setSwitches() {
    manager_.setLoadcaseAutomation(random_.oneIn(2));
    manager_.setSystemBoundary(random_.below(7));
    manager_.setOwnWeight(random_.oneIn(2));
    manager_.enableUseQuadraticShape(random_.oneIn(2));
    manager_.setDesignLocation(random_.below(3));
    manager_.enableCalculation(random_.oneIn(2));
    manager_.enableUseEquidistantBeamParts(random_.oneIn(2));
}

void RandomModel::addLoadcases() {
    for (int i = random_.below(4); i > 0; --i) {
        SysBase::Loadcase *loadcase = manager_.giveLoadcaseToNumber(1 + random_.below(9), true);
        loadcase->setName(name());
        loadcase->setType(random_.below(4));
        loadcase->setOwnWeight(random_.oneIn(2));
        loadcase->setPrimary(!random_.oneIn(4));
        loadcase->enableCalculateEigen(random_.oneIn(4));
    }
    manager_.setCurrentLoadcase(random_.below(10));
}

void RandomModel::setProcessDefaults() {
    KzStandard::get()->setMode(random_.below(3));
    VarnelDefaultProperties &defaults = *VarnelDefaultProperties::get();
    VarnelLineBoundaryData support(random_.below(9), name());
    support.setWidth(value());
    support.setLocal(random_.oneIn(2));
    support.setType(random_.below(3));
    setSupport(support);
    defaults.setLBData(support);

    VarnelPlateProperties plate;
    plate.setName(name());
    plate.setThick(value());
    plate.setMeshSizeX(value());
    plate.setMeshSizeY(value());
    plate.setMinMeshSize(value());
    plate.setMeshAngle(value());
    plate.setAutoMeshSize(random_.oneIn(2));
    plate.setElementType(random_.below(4));
    plate.setMeshType(random_.below(4));
    plate.setMaterial(material());
    const VarnelDesignData record = design();
    plate.setDesign(random_.oneIn(2) ? &record : nullptr);
    defaults.setPlateProp(plate);

    VarnelBeamProperties beam;
    beam.setName(name());
    beam.setAngle(value());
    beam.setParts(1 + random_.below(9));
    beam.setElementType(random_.below(4));
    beam.setBeamType(random_.below(4));
    beam.setMaterial(material());
    beam.setSection(sectionOf(manager_.getSectionManager(), "own 20/45"), 0);
    beam.setOffset(point(), 0);
    defaults.setBeamProp(beam);

    VarnelPointBoundaryData column(random_.below(9), {});
    column.setName(name());
    if (!exact_) column.setAngle(random_.unit(), 2);
    setSupport(column);
    defaults.setPBData(column);

    VarnelHole hole;
    hole.setName(name());
    hole.setLoadDistribution(random_.oneIn(2));
    defaults.setHole(hole);
    VarnelLoadDistributionArea area;
    area.setName(name());
    defaults.setLDA(area);
    setDefaultLoads();
}

void RandomModel::setDefaultLoads() {
    VarnelDefaultProperties &defaults = *VarnelDefaultProperties::get();
    VarnelPointLoad pointLoad;
    setLoad(pointLoad);
    pointLoad.setForce(vector());
    pointLoad.setMoment(vector());
    pointLoad.setDispLoad(random_.oneIn(2));
    defaults.setPointLoad(pointLoad);
    VarnelAreaLoad areaLoad;
    setLoad(areaLoad);
    areaLoad.setP(vector());
    defaults.setAreaLoad(areaLoad);
    VarnelLineLoadData lineLoad;
    lineLoad.setName(name());
    lineLoad.setType(random_.below(3));
    lineLoad.setP1(vector());
    lineLoad.setM2(vector());
    defaults.setLineLoad(lineLoad);
}

void RandomModel::addResources() {
    manager_.getMaterialManager()->add(new KzConcrete("own <C> & ", 2450.0, 24.5));
    manager_.getMaterialManager()->add(
        new KzMaterial{" own steel\tT", 7850.0 * random_.unit(), random_.unit()});
    manager_.getSectionManager()->add(new SDBSectionLine("own 20/45", random_.unit()));
    manager_.getSectionManager()->add(SDBSectionLine::makeRectangle("own \"R\"", 0.25, 0.75).release());
    manager_.getDgnList()->add(new KzReinfLine(3, name()));
    manager_.getDgnList()->findBeamReinf(3)->setSection(sectionOf(manager_.getSectionManager(), "own 20/45"));
    if (random_.oneIn(2)) manager_.giveFoundation(nullptr, KzVector3D(value(), 2, 3));
    if (random_.oneIn(2)) manager_.giveFoundation(nullptr, KzVector3D(0, 0, 1e5));
}

void RandomModel::fillSubSystem(VarnelSubSystem &subSystem, int depth) {
    using Adder = void (RandomModel::*)();
    static const std::vector<Adder> adders = {
        &RandomModel::addPlate,         &RandomModel::addPlate,
        &RandomModel::addBeam,          &RandomModel::addBeam,
        &RandomModel::addHole,          &RandomModel::addAttributeArea,
        &RandomModel::addPointBoundary, &RandomModel::addLoadDistributionArea,
        &RandomModel::addLineBoundary,  &RandomModel::addPointLoad,
        &RandomModel::addLineLoad,      &RandomModel::addAreaLoad,
        &RandomModel::addResultSection, &RandomModel::addWhatIsNotWritten,
    };
    model_ = subSystem.getDatabase();
    model_->setSystemMode(random_.below(9));
    model_->setNumberOfBeamLocations(random_.below(9));
    model_->setAcceleration(vector());
    for (int i = random_.below(depth == 0 ? 9 : 4); i > 0; --i) (this->*random_.of(adders))();
    for (int i = random_.below(3); i > 0; --i) addGroup(depth > 0);
    if (depth == 3) return;
    for (int i = random_.below(3) - (depth > 0 ? 1 : 0); i > 0; --i) {
        VarnelSubSystem *child = manager_.giveSubSystem(name(), &subSystem);
        child->setOffset(point());
        fillSubSystem(*child, depth + 1);
    }
}

void RandomModel::addPlate() {
    VarnelPlate *plate = model_->givePlate(true);
    if (random_.oneIn(2)) plate->setName(name());
    if (!random_.oneIn(8)) plate->setArea(outline());
    plate->setElementType(random_.below(4));
    plate->setMeshType(random_.below(4) - 1);
    plate->setPlateType(random_.below(4));
    plate->setAutoMeshSize(random_.oneIn(2));
    plate->setMeshSizeX(value());
    plate->setMeshSizeY(value());
    plate->setMinMeshSize(value());
    plate->setMeshAngle(value());
    plate->setThick(value());
    if (random_.oneIn(2)) plate->setMaterial(material(), 0);
    const auto &foundations = manager_.getFoundationManager()->getFoundations();
    if (!foundations.empty() && random_.oneIn(2)) plate->setFoundation(random_.of(foundations));
    addEdges(*plate);
    addPlateLoads(*plate);
    plate->setActive(!random_.oneIn(4));
    if (random_.oneIn(4)) plate->giveResultPosition(1.0, 2.0, 0.0);
    if (random_.oneIn(2)) return;
    const VarnelDesignData record = design();
    plate->setDesign(&record);
}

void RandomModel::addEdges(VarnelPlate &plate) {
    for (std::size_t edge = 0; edge < 6; ++edge) {
        if (plate.getGeo() && random_.oneIn(4)) plate.getGeo()->setNumParts(edge, random_.below(9));
        if (random_.oneIn(4)) plate.setEdgeJoint(edge, random_.below(9));
        if (!random_.oneIn(3)) continue;
        const int dof = random_.below(9);
        plate.setBoundary(edge, dof, {}, random_.oneIn(2) ? name().c_str() : nullptr);
        VarnelLineBoundaryData *data = plate.getBoundary(edge);
        if (!data) continue;
        setSupport(*data);
        data->setWidth(value());
        data->setLocal(random_.oneIn(2));
        data->setLocsys(direction());
        data->setType(random_.below(3));
    }
}

void RandomModel::addPlateLoads(VarnelPlate &plate) {
    for (int i = random_.below(4); i > 0; --i) {
        const auto type = static_cast<SysBase::LoadcaseData::Type>(random_.below(4));
        SysBase::Loadcase *loadcase = oneOf(random_, manager_.getLoadcases());
        VarnelAreaLoad *load = plate.giveAreaLoad(type, random_.oneIn(2) ? loadcase : nullptr);
        load->setName(name());
        load->setType(random_.below(2));
        load->getData().setTransmissionType(random_.below(3));
        load->setP(vector());
    }
}

VarnelDesignData RandomModel::design() {
    VarnelDesignData design{exact_ ? 0.0 : random_.unit() * 6.0 - 3.0, value(), value(), value(), value()};
    design.setCnom(value());
    design.setMinimumSteel(value());
    if (random_.oneIn(2)) design.setBasicMeshL(manager_.getStockMesh("Q335A"));
    if (random_.oneIn(2)) design.setBasicMeshU(manager_.getStockMesh("R257A"));
    if (random_.oneIn(2))
        design.setReinforcement(KzMaterialHandler::get()->findReinforcementToName("B500A", 0));
    design.setMinShearReinforcement(value());
    design.setShearAngle(value());
    design.setStrutAngle(value());
    design.setJointPosition(value());
    design.setBondReinfAngle(value());
    design.setShearReinfStrength(value());
    design.setShearJointSurface(random_.below(4));
    design.setStressDesignType(random_.below(3));
    design.setPrestressingSteel(KzMaterialHandler::get()->findPreStressSteelToName("St1570/1770", 0));
    return design;
}

void RandomModel::addBeam() {
    VarnelBeam *beam = model_->giveBeam(true);
    beam->setName(name());
    if (random_.oneIn(2)) {
        const KzVector3D start = point();
        beam->setLine(start, point(), 0);
    } else if (!random_.oneIn(8)) {
        auto *axis = new VarnelBeamGeo;
        if (random_.oneIn(4))
            axis->addLine(new VarnelCircle{point(), point(), point()});
        else
            for (int i = 2 + random_.below(3); i > 0; --i) axis->addVertex(point());
        beam->setGeo(axis);
    } else {
        beam->setGeo(nullptr);
    }
    beam->setElementType(random_.below(4));
    beam->setBeamType(random_.below(4));
    beam->setMeshSize(value());
    beam->setAngle(value());
    if (random_.oneIn(2)) beam->setParts(random_.below(9));
    if (random_.oneIn(4)) beam->setLeftGap(new VarnelGapControl);
    if (random_.oneIn(4)) beam->setRightGap(new VarnelGapControl);
    if (random_.oneIn(4)) beam->add(new VarnelJoint(0.5, 1));
    if (random_.oneIn(4)) beam->setOffset(point(), 0);
    if (random_.oneIn(4)) beam->setActive(false);
    if (random_.oneIn(4)) beam->setFireExposed(true);
    if (beam->getLeftGap()) beam->getLeftGap()->setThick(value());
    const VarnelDesignData record = design();
    if (random_.oneIn(4)) beam->setDesign(&record);
    addBeamResources(*beam);
}

void RandomModel::addBeamResources(VarnelBeam &beam) {
    if (random_.oneIn(2)) beam.setMaterial(material(), 0);
    for (int end = 0; end < 2; ++end) {
        const int choice = random_.below(4);
        if (choice == 0) beam.setSection(sectionOf(manager_.getSectionManager(), "own 20/45"), end);
        if (choice == 1) beam.setSection(sectionOf(SDBSectionDatabase::get(), "R 30/50"), end);
    }
    if (random_.oneIn(3)) beam.setReinfLine(manager_.getDgnList()->findBeamReinf(3));
    const auto &foundations = manager_.getFoundationManager()->getFoundations();
    if (!foundations.empty() && random_.oneIn(3)) beam.setFoundation(random_.of(foundations));
    for (int i = random_.below(4) - 1; i > 0; --i) addSpan(beam);
}

void RandomModel::addSpan(VarnelBeam &beam) {
    const KzVector3D start(0, 0, place()), end(0, 0, place());
    const double posA = random_.unit(), posE = random_.oneIn(2) ? 1.0 : random_.unit();
    beam.addFoundation(start, posA, end, posE, &manager_);
}

void RandomModel::addHole() {
    VarnelHole *hole = model_->giveHole();
    model_->add(hole);
    hole->setName(name());
    hole->setLoadDistribution(random_.oneIn(2));
    if (!random_.oneIn(6)) hole->setArea(outline());
}

void RandomModel::addAttributeArea() {
    VarnelAttributeArea *area = model_->giveAttributeArea();
    area->setName(name());
    area->setThickness(value());
    area->setMeshSize(value());
    if (random_.oneIn(2)) area->setMaterial(material(), 0);
    if (!random_.oneIn(6)) area->setArea(outline());
}

void RandomModel::addLoadDistributionArea() {
    VarnelLoadDistributionArea *area = model_->giveLoadDistributionArea();
    model_->add(area);
    area->setName(name());
    if (!random_.oneIn(6)) area->setArea(outline());
}

void RandomModel::addPointBoundary() {
    const KzVector3D place = point();
    const int dof = random_.below(9), shape = random_.below(3);
    const double b = value(), d = value();
    VarnelPointBoundary *boundary = nullptr;
    if (shape == 0)
        boundary = model_->givePointBoundary(place, dof);
    else if (shape == 1)
        boundary = model_->givePointBoundaryCircle(place, dof, d);
    else
        boundary = model_->givePointBoundaryRectan(place, dof, b, d);
    boundary->setName(name());
    boundary->setSpacing(random_.oneIn(3) ? 0.0 : value());
    const int frame = random_.below(4);
    const double angle = exact_ ? 0.0 : random_.unit() * 6.0 - 3.0;
    if (frame < 2) {
        boundary->setAngle(angle, 1 + frame);
    } else if (frame == 2) {
        KzMatrix44 base;
        base.setVector(0, KzVector3D(0, 1, 0));
        base.setVector(1, KzVector3D(0, 0, 1));
        base.setVector(2, KzVector3D(1, 0, 0));
        if (random_.oneIn(2)) base.setVector(3, point());
        boundary->setBase(base);
    }
    setSupport(boundary->getData());
    boundary->setActive(random_.oneIn(2));
    boundary->setTypInd(random_.below(3));
    boundary->getData().setHeight(value());
}

/// Now and then along an edge of a plate, which then shares the support.
VarnelLine *RandomModel::wallLine() {
    const VarnelPlate *plate = oneOf(random_, std::as_const(*model_).getPlates());
    const VarnelLine *edge = plate && plate->getGeo() ? plate->getGeo()->getLine(0) : nullptr;
    if (!edge || random_.oneIn(2)) return line(true);
    return new VarnelStraight(edge->getStartVec(), edge->getEndVec());
}

void RandomModel::addLineBoundary() {
    auto *boundary = new VarnelLineBoundary(wallLine());
    model_->add(boundary);
    if (random_.oneIn(2)) boundary->setName(name());
    boundary->getData().setDof(random_.below(9));
    boundary->getData().setWidth(value());
    boundary->getData().setType(random_.below(3));
    boundary->setLocal(random_.oneIn(2));
    boundary->setLocsys(direction());
    setSupport(boundary->getData());
}

void RandomModel::setSupport(VarnelBoundaryData &data) {
    const int choice = random_.below(4);
    if (choice == 0) data.setStiffness({0.25, 0, place(), 0, 0, value()});
    if (choice == 1) data.setStiffness({0, 0, 0, 1, 2, 3});
    if (choice == 2) data.setDispStiff(KzVector3D(0.0005, 0.0, 0.0));
    if (random_.oneIn(2)) return;
    data.setTransferOwnWeight(random_.oneIn(2));
    data.setSpecificWeight(value());
    data.setHeight(value());
}

void RandomModel::setLoad(VarnelLoad &load) {
    load.setName(name());
    load.setType(random_.below(3));
    load.setLcType(random_.below(4));
    if (random_.oneIn(2)) load.setLoadcase(oneOf(random_, manager_.getLoadcases()));
}

void RandomModel::addPointLoad() {
    VarnelPointLoad *load = model_->givePointLoad();
    setLoad(*load);
    load->setCoor(point());
    load->setForce(vector());
    load->setMoment(vector());
    load->setAngle(random_.oneIn(2) ? 0.5 : 0.0, 2);
    load->setDispLoad(random_.oneIn(2));
    load->setActive(random_.oneIn(2));
}

void RandomModel::addLineLoad() {
    VarnelLineLoad *load = model_->giveLineLoad(line(true));
    setLoad(*load);
    load->setP1(vector());
    load->setP2(vector());
    load->setM1(vector());
    load->setM2(vector());
    load->setLocsys(direction());
    load->setLocsysType(random_.below(4));
    load->setActive(random_.oneIn(2));
}

void RandomModel::addAreaLoad() {
    VarnelAreaLoad *load = model_->giveAreaLoad();
    setLoad(*load);
    load->getData().setTransmissionType(random_.below(3));
    load->setP(vector());
    if (!random_.oneIn(4)) load->setArea(outline());
}

void RandomModel::addResultSection() {
    const KzVector3D start = point();
    VarnelResultSection *section = model_->giveResultSection(start, point());
    section->setName(name());
    section->setInPlane(random_.oneIn(2));
    section->getLocations().push_back(new VarnelResultSectionLocation(0.5));
    model_->add(section);
}

/// Numbers of area loads run through the tree, but only those of the first model are found again by them, so
/// groups of nested subsystems hold none.
void RandomModel::addGroup(bool nested) {
    VarnelObjectGroup *group = model_->giveObjectGroup(name());
    model_->add(group);
    group->setUserDefined(random_.oneIn(2));
    group->setCalculate(random_.oneIn(2));
    if (random_.oneIn(2)) group->setOffset(point());
    const Varnel &model = *model_;
    for (int i = random_.below(5); i > 0; --i) {
        const std::vector<VarnelObject *> candidates = {
            oneOf(random_, model.getPlates()),
            oneOf(random_, model.getBeams()),
            oneOf(random_, model.getHoles()),
            oneOf(random_, model.getLineBoundaries()),
            oneOf(random_, model.getPointBoundaries()),
            oneOf(random_, model.getPointLoads()),
            oneOf(random_, model.getLineLoads()),
            oneOf(random_, model.getLoadDistributionAreas()),
            oneOf(random_, model.getBeamLoads()),
            nested ? nullptr : static_cast<VarnelObject *>(oneOf(random_, model.getAreaLoads())),
        };
        group->add(random_.of(candidates));
    }
}

/// Objects without an element of their own, and entries of lists that are no object.
void RandomModel::addWhatIsNotWritten() {
    model_->giveBeamLoad()->setName(name());
    model_->givePoint(point());
    if (random_.oneIn(2)) model_->add(static_cast<VarnelPlate *>(nullptr));
    if (random_.oneIn(2)) model_->add(static_cast<VarnelBeam *>(nullptr));
    if (random_.oneIn(2)) model_->add(static_cast<VarnelAreaLoad *>(nullptr));
    if (random_.oneIn(2)) model_->add(static_cast<VarnelPointBoundary *>(nullptr));
    if (random_.oneIn(4)) model_->add(new VarnelStraight{point(), point()});
    if (random_.oneIn(8)) model_->giveGap();
    if (random_.oneIn(4)) model_->add(new VarnelRefinePolygon);
}

/// States of objects of the root and its children: deeper ones are not found again.
void RandomModel::addStages() {
    VarnelSubSystem *root = manager_.getCurrentSubSystem();
    std::vector<Varnel *> models{root->getDatabase()};
    for (VarnelSubSystem *child : root->getChildren()) models.push_back(child->getDatabase());
    for (int i = random_.below(3); i > 0; --i) {
        VarnelConstructionStage *stage = root->getDatabase()->getDBaseFactory()->giveConstructionStage();
        root->add(stage);
        stage->setName(name());
        for (const Varnel *model : models) {
            if (VarnelPlate *plate = oneOf(random_, model->getPlates())) {
                stage->giveState(plate)->setActive(random_.oneIn(2));
                if (random_.oneIn(2)) stage->giveState(plate)->setMaterial(material());
            }
            if (VarnelBeam *beam = oneOf(random_, model->getBeams()))
                stage->giveState(beam)->setMaterial(random_.oneIn(2) ? material() : nullptr);
            if (VarnelPointBoundary *boundary = oneOf(random_, model->getPointBoundaries()))
                stage->giveState(boundary)->setActive(random_.oneIn(2));
            if (VarnelPointLoad *load = oneOf(random_, model->getPointLoads()))
                stage->giveState(load)->setActive(random_.oneIn(2));
            if (VarnelLineLoad *load = oneOf(random_, model->getLineLoads()))
                stage->giveState(load)->setActive(random_.oneIn(2));
        }
    }
}

void RandomModel::addResults() {
    addResultsTo(*manager_.getDatabase());
    for (const VarnelSubSystem *child : manager_.getCurrentSubSystem()->getChildren())
        addResultsTo(*child->getDatabase());
}

void RandomModel::addResultsTo(Varnel &model) {
    for (VarnelBeam *beam : model.getBeams()) {
        if (!beam || random_.oneIn(2)) continue;
        SysBase::BeamResultState *state = beam->giveResultState(1 + random_.below(3));
        for (int i = 0; i < 3; ++i) {
            state->add(new SysBase::BeamDeformationsLocation(0.5 * i, vector()));
            state->add(new SysBase::BeamStressResultantsLocation(0.5 * i, value()));
        }
    }
    for (VarnelObjectGroup *group : model.getObjectGroups()) group->giveResultState(1);
}

/// A coordinate within 50 m of the origin.
double RandomModel::place() {
    if (exact_ || random_.oneIn(2)) return (random_.below(401) - 200) * 0.25;
    if (random_.oneIn(2)) return (random_.below(1001) - 500) / 10.0;
    return random_.unit() * 100.0 - 50.0;
}

/// A value that goes through the document as it is, however odd.
double RandomModel::value() {
    static const std::vector<double> odd = {0.1,    1.0 / 3.0, -0.0,    1e-5, 123456789.125,
                                            1e-300, 4e-320,    1.7e308, 1e21, 0.30000000000000004};
    if (random_.oneIn(3)) return random_.of(odd);
    return random_.oneIn(2) ? random_.unit() : random_.below(100) * 0.125;
}

KzVector3D RandomModel::point() {
    const double x = place(), y = place();
    return {x, y, random_.oneIn(2) ? 0.0 : place()};
}

KzVector3D RandomModel::vector() {
    const double x = value(), y = value();
    return {x, y, value()};
}

KzVector3D RandomModel::direction() {
    static const std::vector<KzVector3D> axes = {{1, 0, 0}, {0, -1, 0}, {0, 0, 1}, {0, 0, 0}};
    return exact_ || random_.oneIn(2) ? random_.of(axes) : point();
}

std::string RandomModel::name() {
    static const std::vector<std::string> names = {"",
                                                   "Decke 1",
                                                   "K\xC3\xBC"
                                                   "che",
                                                   "<&>\"'",
                                                   " both ends ",
                                                   "\xE6\x97\xA5\xE6\x9C\xAC",
                                                   "a\tb\n",
                                                   "]]>\r\n&amp;",
                                                   "\xF0\x9D\x9B\x91",
                                                   "System",
                                                   "a  b",
                                                   "Platte 2"};
    return random_.oneIn(4) ? "Object " + std::to_string(random_.below(50)) : random_.of(names);
}

KzMaterial *RandomModel::material() {
    KzMaterialManager *own = manager_.getMaterialManager();
    KzMaterialHandler *stock = KzMaterialHandler::get();
    const std::vector<KzMaterial *> materials = {
        own->findConcreteToName("own <C> & ", 0), own->findMaterialToName(" own steel\tT", 0),
        stock->findConcreteToName("C30/37", 0), stock->findMaterialToName("S235", 0)};
    return random_.of(materials);
}

VarnelLine *RandomModel::line(bool maybeNone) {
    if (maybeNone && random_.oneIn(8)) return nullptr;
    if (random_.oneIn(6)) return new VarnelCircle{point(), point(), point()};
    return new VarnelStraight{point(), point()};
}

VarnelArea *RandomModel::outline() {
    const int choice = random_.below(3);
    if (choice == 0)
        return new VarnelAreaRectangle{point(), 0.25 * (1 + random_.below(40)),
                                       0.25 * (1 + random_.below(40)), exact_ ? 0.0 : random_.unit() * 3.0};
    if (choice == 1) {
        std::vector<KzVector3D> corners;
        for (int i = 3 + random_.below(4); i > 0; --i) corners.push_back(point());
        return new VarnelAreaPolygon(corners);
    }
    auto *area = new VarnelArea;
    const KzVector3D a = point(), b = point(), c = point();
    area->addLine(new VarnelStraight(a, b));
    area->addLine(new VarnelStraight(b, c));
    area->addLine(new VarnelCircle(point(), c, a));
    if (random_.oneIn(2))
        for (const double xi : {0.0, 0.25, 1.0}) area->getLine(0)->addXi(xi);
    return area;
}

}  // namespace varnel::test
