#include "tests/support/DocumentDifference.h"

#include <cmath>
#include <sstream>

#include "varnel/contracts/KzXmlAttributeData.h"
#include "varnel/contracts/KzXmlData.h"
#include "varnel/contracts/KzXmlTree.h"

namespace varnel::test {

namespace {

/// Numbers that a frame or a change of units rounds: the sizes of rectangles, angles and directions.
bool isRounded(const KzXmlData &element, const std::string &key) {
    const std::string &name = element.getName();
    if (key.empty()) return element.getParent()->getName().rfind("LOCSYS", 0) == 0;
    return name == "RECTAN" || (name == "DESIGN" && key == "THETA") ||
           ((name == "PBOUND" || name == "POINTBOUNDARY") && key == "ANGLE");
}

bool areNear(const std::string &a, const std::string &b) {
    const double x = std::stod(a), y = std::stod(b);
    return std::fabs(x - y) <= 1e-12 * std::fmax(1.0, std::fabs(x));
}

/// Empty, or where two elements differ by more than rounding.
std::string difference(const KzXmlData &a, const KzXmlData &b) {
    const auto attributesA = a.getAttributes(), attributesB = b.getAttributes();
    const std::string here = "/" + a.getName();
    if (a.getName() != b.getName() || attributesA.size() != attributesB.size() ||
        a.getChildren().size() != b.getChildren().size())
        return here;
    if (a.getData() != b.getData() && !(isRounded(a, "") && areNear(a.getData(), b.getData())))
        return here + ": " + a.getData() + " and " + b.getData();
    for (std::size_t i = 0; i < attributesA.size(); ++i) {
        const std::string &key = attributesA[i]->getKey();
        if (key != attributesB[i]->getKey()) return here + "@" + key;
        const std::string &x = attributesA[i]->getData(), &y = attributesB[i]->getData();
        if (x != y && !(isRounded(a, key) && areNear(x, y))) return here + "@" + key + ": " + x + " and " + y;
    }
    for (std::size_t i = 0; i < a.getChildren().size(); ++i) {
        const std::string below = difference(*a.getChildren()[i], *b.getChildren()[i]);
        if (!below.empty()) return here + below;
    }
    return "";
}

}  // namespace

std::string difference(const std::string &a, const std::string &b) {
    KzXmlTree first("A"), second("B");
    std::istringstream streamA(a), streamB(b);
    first.buildOfStream(streamA);
    second.buildOfStream(streamB);
    return difference(*first.getRoot(), *second.getRoot());
}

std::string firstDifference(const std::string &a, const std::string &b) {
    std::istringstream linesA(a), linesB(b);
    std::string lineA, lineB;
    while (std::getline(linesA, lineA) && std::getline(linesB, lineB))
        if (lineA != lineB) return lineA + "\n" + lineB;
    return a == b ? "" : "one of them ends";
}

}  // namespace varnel::test
