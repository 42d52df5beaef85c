#include "varnel/contracts/SDBSectionLine.h"

namespace {

constexpr double pi = 3.14159265358979323846;

}  // namespace

std::unique_ptr<SDBSectionLine> SDBSectionLine::makeRectangle(const std::string &name, double width,
                                                              double height) {
    auto section = std::make_unique<SDBSectionLine>(name, 0.0);
    section->setRectangle(width, height);
    return section;
}

std::unique_ptr<SDBSectionLine> SDBSectionLine::makeCircle(const std::string &name, double diameter) {
    auto section = std::make_unique<SDBSectionLine>(name, 0.0);
    section->setCircle(diameter);
    return section;
}

void SDBSectionLine::setRectangle(double width, double height) {
    setShape(RECT, width, height, width * height);
}

void SDBSectionLine::setCircle(double diameter) {
    setShape(CIRCLE, diameter, 0.0, pi * diameter * diameter / 4.0);
}

void SDBSectionLine::setArea(double area) {
    setShape(GENERAL, 0.0, 0.0, area);
}

void SDBSectionLine::setShape(Kind kind, double first, double second, double area) {
    if (kind != kind_ || first != first_ || second != second_) {
        kind_ = kind;
        first_ = first;
        second_ = second;
        setChanged(true);
    }
    SDBSection::setArea(area);
}
