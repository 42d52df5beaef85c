#include "bench/DocumentGenerator.h"

#include <charconv>
#include <cmath>
#include <random>
#include <string_view>

namespace varnel::bench {

namespace {

class Generator {
  public:
    Generator(std::size_t bytes, unsigned seed) : bytes_(bytes), random_(seed) {
        text_.reserve(bytes + 10000);
    }

    std::string make() {
        text_ = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
        open("VARNEL");
        open("SUBSYSTEM", R"( NAME="System" STANDARD="1")");
        vector("OFFSET", 0, 0, 0);
        open("PLATES");
        for (int i = 1; text_.size() < bytes_ * 7 / 10; ++i) plate(i);
        close("PLATES");
        open("POINTLOADS");
        for (int i = 1; text_.size() < bytes_ * 85 / 100; ++i) pointLoad(i);
        close("POINTLOADS");
        open("LINELOADS");
        for (int i = 1; text_.size() < bytes_; ++i) lineLoad(i);
        close("LINELOADS");
        close("SUBSYSTEM");
        close("VARNEL");
        return std::move(text_);
    }

  private:
    void indent() { text_.append(2 * level_, ' '); }

    void open(std::string_view name, const std::string &attributes = {}) {
        indent();
        ((text_ += '<') += name) += attributes;
        text_ += ">\n";
        ++level_;
    }

    void close(std::string_view name) {
        --level_;
        indent();
        (text_ += "</") += name;
        text_ += ">\n";
    }

    static std::string number(double value) {
        char chars[32];
        return {chars, std::to_chars(chars, chars + sizeof chars, value).ptr};
    }

    void component(std::string_view name, double value) {
        indent();
        ((text_ += '<') += name) += '>';
        text_ += number(value);
        ((text_ += "</") += name) += ">\n";
    }

    void vector(std::string_view name, double x, double y, double z) {
        open(name);
        component("X", x);
        component("Y", y);
        component("Z", z);
        close(name);
    }

    void line(double x1, double y1, double x2, double y2, double z) {
        open("LINE", R"( TYPE="STRAIGHT")");
        vector("START", x1, y1, z);
        vector("END", x2, y2, z);
        close("LINE");
    }

    double grid(int steps) { return static_cast<double>(random_() % static_cast<unsigned>(steps)) / 20.0; }

    /// A rectangle, every fourth one turned so that its corners are no round numbers.
    void plate(int index) {
        const double x = grid(2000), y = grid(2000), z = 3.0 * static_cast<double>(random_() % 10);
        const double width = 1 + grid(100), height = 1 + grid(100);
        const double angle = index % 4 == 0 ? 0.1 * static_cast<double>(index % 30) : 0.0;
        const double c = std::cos(angle), s = std::sin(angle);
        const double xs[] = {x, x + width * c, x + width * c - height * s, x - height * s};
        const double ys[] = {y, y + width * s, y + width * s + height * c, y + height * c};
        const std::string key = std::to_string(index);
        open("PLATE",
             " NUMBER=\"" + key + "\" NAME=\"P" + key +
                 R"(" TYPE="1" MESH="0" PTYPE="0" AUTOMESH="1" MESHSIZE="0.5" ANGLE="0" THICK="0.25" )" +
                 R"(MATERIAL="C25/30")");
        open("AREA");
        for (int i = 0; i < 4; ++i) {
            open("EDGE", " POS=\"" + std::to_string(i + 1) + "\"");
            line(xs[i], ys[i], xs[(i + 1) % 4], ys[(i + 1) % 4], z);
            close("EDGE");
        }
        close("AREA");
        open("BOUNDS");
        for (int i = 0; i < 4; ++i) {
            indent();
            text_ += "<EDGE POS=\"" + std::to_string(i) + "\" NUMPARTS=\"1\" NUMBER=\"" +
                     std::to_string(4 * index + i) + "\" NAME=\"L" + std::to_string(i + 1) +
                     "\" DOF=\"7\" LOCAL=\"0\" WIDTH=\"0.24\" JDOF=\"0\"/>\n";
        }
        close("BOUNDS");
        close("PLATE");
    }

    void pointLoad(int index) {
        const std::string key = std::to_string(index);
        open("POINTLOAD", " NUMBER=\"" + key + "\" NAME=\"Q" + key + R"(" LCTYPE="2" LC="3")");
        vector("POS", grid(2000), grid(2000), 3);
        vector("FORCE", 0, 0, grid(200));
        vector("MOMENT", 0, 0, 0);
        close("POINTLOAD");
    }

    void lineLoad(int index) {
        const std::string key = std::to_string(index);
        open("LINELOAD", " NUMBER=\"" + key + "\" NAME=\"Wall " + key + R"(" LCTYPE="1" TYPE="0" LC="2")");
        line(grid(2000), grid(2000), grid(2000), grid(2000), 3);
        vector("P1", 0, 0, grid(200));
        vector("P2", 0, 0, grid(200));
        close("LINELOAD");
    }

    const std::size_t bytes_;
    std::mt19937 random_;
    std::string text_;
    std::size_t level_ = 0;
};

}  // namespace

std::string makeDocument(std::size_t bytes, unsigned seed) {
    return Generator(bytes, seed).make();
}

}  // namespace varnel::bench
