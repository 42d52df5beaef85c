#include "varnel/contracts/SDBSectionDatabase.h"

#include <string>

#include "varnel/contracts/SDBSectionLine.h"

namespace {

constexpr int smallest = 20;  // cm
constexpr int largest = 100;
constexpr int step = 10;
constexpr double metres(int centimetres) {
    return centimetres / 100.0;
}

}  // namespace

SDBSectionDatabase::SDBSectionDatabase() {
    const auto stock = [this](std::unique_ptr<SDBSectionLine> section) {
        section->setUserDefined(false);
        section->setChanged(false);
        add(section.release());
    };
    for (const int width : {20, 24, 25, 30, 40, 50})
        for (int height = smallest; height <= largest; height += step) {
            const std::string name = "R " + std::to_string(width) + "/" + std::to_string(height);
            stock(SDBSectionLine::makeRectangle(name, metres(width), metres(height)));
        }
    for (int diameter = smallest; diameter <= largest; diameter += step)
        stock(SDBSectionLine::makeCircle("D " + std::to_string(diameter), metres(diameter)));
}

SDBSectionDatabase *SDBSectionDatabase::get() {
    static SDBSectionDatabase database;
    return &database;
}
