// Reads the model of a house, prints what it holds, saves it, reads the saved file again and shows that a
// second save is the same file, byte for byte.
// usage: 01_read_and_write [DOCUMENT [OUTPUT-FOLDER]]

#include <cstdio>
#include <exception>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <string>

#include "varnel/varnel.h"

namespace {

/// Forces by the name of the load case, in kN.
using Totals = std::map<std::string, KzVector3D>;

void addLoad(Totals &totals, const SysBase::Loadcase *loadcase, const KzVector3D &force) {
    std::string name = "(none)";
    if (loadcase) name = std::to_string(loadcase->getNumber()) + " " + loadcase->getName();
    totals[name] += force;
}

std::string nameOf(const KzMaterial *material) {
    return material ? material->getName() : "no material";
}

void printPlate(const VarnelPlate &plate, Totals &totals) {
    const VarnelArea *outline = plate.getGeo();
    const double area = outline ? outline->getArea() : 0.0;
    std::printf("  plate %d \"%s\": %zu edges, %.2f m2, %.2f m thick, %s%s\n", plate.getNumber(),
                plate.getName().c_str(), outline ? outline->getNumLines() : 0, area,
                plate.getData().getThick(), nameOf(plate.getMaterial(0)).c_str(),
                plate.getFoundation() ? ", on bedding" : "");
    for (std::size_t edge = 0; outline && edge < outline->getNumLines(); ++edge) {
        const VarnelLineBoundaryData *support = plate.getBoundary(edge);
        if (support && support->getDof() != 0)
            std::printf("    edge %zu rests on \"%s\", %.3f m wide\n", edge, support->getName().c_str(),
                        support->getWidth());
    }
    for (const VarnelAreaLoad *load : plate.getAreaLoads()) {
        const KzVector3D p = load->getData().getP();
        std::printf("    load \"%s\": %.2f kN/m2\n", load->getName().c_str(), p.getZ());
        addLoad(totals, load->getLoadcase(), p * area);
    }
}

void printMembers(const Varnel &model, Totals &totals) {
    for (const VarnelPlate *plate : model.getPlates()) printPlate(*plate, totals);
    for (const VarnelBeam *beam : model.getBeams())
        std::printf("  beam %d \"%s\": %.2f m, %s, %s\n", beam->getNumber(), beam->getName().c_str(),
                    beam->getLength(),
                    beam->getSection(0) ? beam->getSection(0)->getName().c_str() : "no section",
                    nameOf(beam->getMaterial(0)).c_str());
    for (const VarnelPointBoundary *column : model.getPointBoundaries())
        std::printf("  column %d \"%s\" at (%.2f, %.2f, %.2f)\n", column->getNumber(),
                    column->getName().c_str(), column->getCoor().getX(), column->getCoor().getY(),
                    column->getCoor().getZ());
    for (const VarnelLineBoundary *wall : model.getLineBoundaries())
        std::printf("  wall %d \"%s\": %.2f m long, %.3f m wide\n", wall->getNumber(),
                    wall->getName().c_str(), wall->getGeo() ? wall->getGeo()->getLength() : 0.0,
                    wall->getData().getWidth());
}

void printLoads(const Varnel &model, Totals &totals) {
    for (const VarnelPointLoad *load : model.getPointLoads()) {
        std::printf("  point load \"%s\": %.2f kN\n", load->getName().c_str(),
                    load->getData().getForce().getZ());
        addLoad(totals, load->getLoadcase(), load->getData().getForce());
    }
    for (const VarnelLineLoad *load : model.getLineLoads()) {
        const double length = load->getLine() ? load->getLine()->getLength() : 0.0;
        std::printf("  line load \"%s\": %.2f kN/m over %.2f m\n", load->getName().c_str(),
                    load->getData().getP1().getZ(), length);
        addLoad(totals, load->getLoadcase(),
                (load->getData().getP1() + load->getData().getP2()) * (length / 2.0));
    }
    for (const VarnelAreaLoad *load : model.getAreaLoads()) {
        const double area = load->getArea() ? load->getArea()->getArea() : 0.0;
        std::printf("  area load \"%s\": %.2f kN/m2 over %.2f m2\n", load->getName().c_str(),
                    load->getData().getP().getZ(), area);
        addLoad(totals, load->getLoadcase(), load->getData().getP() * area);
    }
}

void printModel(const VarnelManager &manager) {
    const Varnel &model = *manager.getDatabase();
    Totals totals;
    std::printf("subsystem \"%s\"\n", manager.getCurrentSubSystem()->getName().c_str());
    printMembers(model, totals);
    printLoads(model, totals);
    std::printf("total load by load case, in kN:\n");
    for (const auto &[name, force] : totals)
        std::printf("  %-16s x %8.2f  y %8.2f  z %8.2f\n", name.c_str(), force.getX(), force.getY(),
                    force.getZ());
    double area = 0.0;
    for (const VarnelPlate *plate : model.getPlates())
        if (plate->getGeo()) area += plate->getGeo()->getArea();
    std::printf("totals: %d plates with %.2f m2, %d beams, %d columns, %d walls\n", model.getNumberOfPlates(),
                area, model.getNumberOfBeams(), model.getNumberOfPointBoundaries(),
                model.getNumberOfLineBoundaries());
}

std::string contentOf(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Reads a document and writes it again, the way a host does.
bool readAndWrite(const std::string &from, const std::string &to, bool print) {
    VarnelFactory factory;
    VarnelManager manager(&factory);
    manager.input(from.c_str());
    if (print) printModel(manager);
    manager.output(to.c_str());
    return manager.getExchange()->lastOutputOk();
}

}  // namespace

int main(int argc, char **argv) {
    const std::string document = argc > 1 ? argv[1] : "examples/documents/house.xml";
    const std::string folder = argc > 2 ? argv[2] : Tools::getTempPath();
    const std::string first = folder + "/house-first.xml";
    const std::string second = folder + "/house-second.xml";
    try {
        if (contentOf(document).empty()) {
            std::fprintf(stderr, "cannot read %s\n", document.c_str());
            return 1;
        }
        if (!readAndWrite(document, first, true) || !readAndWrite(first, second, false)) {
            std::fprintf(stderr, "cannot write below %s\n", folder.c_str());
            return 1;
        }
    } catch (const std::exception &error) {
        std::fprintf(stderr, "%s: %s\n", document.c_str(), error.what());
        return 1;
    }
    const std::string text = contentOf(first);
    const bool same = !text.empty() && text == contentOf(second);
    std::printf("saved %zu bytes; the second save is %s\n", text.size(),
                same ? "the same, byte for byte" : "different");
    std::remove(first.c_str());
    std::remove(second.c_str());
    return same ? 0 : 1;
}
