#include <algorithm>
#include <iomanip>
#include <iostream>
#include <locale>
#include <nlohmann/json.hpp>
#include <sstream>

#include "apps/varnel/Commands.h"
#include "apps/varnel/Document.h"
#include "apps/varnel/Summary.h"

namespace varnel::tool {
namespace {

using Json = nlohmann::ordered_json;
using Row = std::vector<std::string>;
using Table = std::vector<Row>;

/// How a figure is called in either form; those with decimals are measures, the others counts.
struct Column {
    Figure figure;
    const char *heading;
    const char *key;
    int decimals;
};

constexpr Column objectColumns[] = {
    {Plates, "plates", "plates", 0},
    {Beams, "beams", "beams", 0},
    {Holes, "holes", "holes", 0},
    {PointSupports, "point supports", "point_supports", 0},
    {LineSupports, "line supports", "line_supports", 0},
    {SupportedEdges, "supported edges", "supported_edges", 0},
    {Gaps, "gaps", "gaps", 0},
    {Groups, "groups", "groups", 0},
    {ResultSections, "result sections", "result_sections", 0},
};
constexpr Column loadColumns[] = {
    {PointLoads, "point loads", "point_loads", 0},
    {LineLoads, "line loads", "line_loads", 0},
    {AreaLoads, "area loads", "area_loads", 0},
    {PlateLoads, "loads of plates", "plate_loads", 0},
};
constexpr Column measureColumns[] = {
    {PlateArea, "plates m2", "plate_area_m2", 3}, {PlateVolume, "plates m3", "plate_volume_m3", 3},
    {BeamLength, "beams m", "beam_length_m", 3},  {BeamVolume, "beams m3", "beam_volume_m3", 3},
    {Weight, "weight kN", "weight_kn", 3},
};

/// Code points, which is near enough to columns for the names of a project.
std::size_t widthOf(const std::string &text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xc0) != 0x80; }));
}

std::string fixed(double value, int decimals) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << std::fixed << std::setprecision(decimals) << value;
    const std::string number = text.str();
    // A sum that is nearly zero has no sign.
    return number.find_first_not_of("-0.") == std::string::npos && number[0] == '-' ? number.substr(1)
                                                                                    : number;
}

/// Rows with aligned columns, the first ones to the left and the others to the right.
void print(const Table &table, std::size_t leftColumns) {
    std::vector<std::size_t> widths(table.front().size());
    for (const Row &row : table)
        for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], widthOf(row[i]));
    for (const Row &row : table) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::string blanks(widths[i] - widthOf(row[i]), ' ');
            if (i > 0) line += "  ";
            line += i < leftColumns ? row[i] + blanks : blanks + row[i];
        }
        line.erase(line.find_last_not_of(' ') + 1);
        std::cout << line << '\n';
    }
    std::cout << '\n';
}

template <std::size_t N>
Row figureRow(const std::string &name, const Figures &figures, const Column (&columns)[N]) {
    Row row{name};
    for (const Column &column : columns) row.push_back(fixed(figures[column.figure], column.decimals));
    return row;
}

template <std::size_t N>
void addTree(Table &table, const Node &node, const std::string &indent, const Column (&columns)[N]) {
    table.push_back(figureRow(indent + oneLine(node.name), node.figures, columns));
    for (const Node &child : node.children) addTree(table, child, indent + "  ", columns);
}

/// The tree of subsystems with some of their figures, and the sum where there are several.
template <std::size_t N>
void printTree(const char *heading, const Summary &summary, const Column (&columns)[N]) {
    Row first{heading};
    for (const Column &column : columns) first.emplace_back(column.heading);
    Table table{first};
    addTree(table, summary.root, "", columns);
    if (!summary.root.children.empty()) table.push_back(figureRow("(all)", summary.total, columns));
    print(table, 1);
}

void printUses(const char *heading, const Uses &uses) {
    if (uses.empty()) return;
    Table table{{heading, "uses"}};
    for (const auto &[name, count] : uses) table.push_back({oneLine(name), std::to_string(count)});
    print(table, 1);
}

void printText(const Summary &summary) {
    printTree("Objects", summary, objectColumns);
    printTree("Loads", summary, loadColumns);
    printTree("Measures", summary, measureColumns);
    printUses("Materials", summary.materials);
    printUses("Cross-sections", summary.sections);
    printUses("Foundations", summary.foundations);
    Table table{{"Case", "name", "x kN", "y kN", "z kN"}};
    for (const LoadSum &sum : summary.loadcases)
        table.push_back({sum.number ? std::to_string(*sum.number) : "-", oneLine(sum.name),
                         fixed(sum.force.getX(), 3), fixed(sum.force.getY(), 3), fixed(sum.force.getZ(), 3)});
    print(table, 2);
}

Json jsonOf(const KzVector3D &vector) {
    return {{"x", vector.getX()}, {"y", vector.getY()}, {"z", vector.getZ()}};
}

template <std::size_t N>
void addFigures(Json &json, const Figures &figures, const Column (&columns)[N]) {
    for (const Column &column : columns) {
        const double value = figures[column.figure];
        if (column.decimals == 0)
            json[column.key] = static_cast<long long>(value);
        else
            json[column.key] = value;
    }
}

Json jsonOf(const Figures &figures) {
    Json json;
    addFigures(json, figures, objectColumns);
    addFigures(json, figures, loadColumns);
    addFigures(json, figures, measureColumns);
    return json;
}

Json jsonOf(const Node &node) {
    Json children = Json::array();
    for (const Node &child : node.children) children.push_back(jsonOf(child));
    Json json{{"name", node.name}, {"offset_m", jsonOf(node.offset)}};
    json.update(jsonOf(node.figures));
    json["children"] = std::move(children);
    return json;
}

Json jsonOf(const Uses &uses) {
    Json json = Json::array();
    for (const auto &[name, count] : uses) json.push_back({{"name", name}, {"uses", count}});
    return json;
}

Json jsonOf(const std::vector<LoadSum> &sums) {
    Json json = Json::array();
    for (const LoadSum &sum : sums)
        json.push_back({{"number", sum.number ? Json(*sum.number) : Json()},
                        {"name", sum.name},
                        {"force_kn", jsonOf(sum.force)}});
    return json;
}

void printJson(const std::string &path, const Summary &summary) {
    const Json json{{"file", path},
                    {"subsystem", jsonOf(summary.root)},
                    {"total", jsonOf(summary.total)},
                    {"materials", jsonOf(summary.materials)},
                    {"cross_sections", jsonOf(summary.sections)},
                    {"foundations", jsonOf(summary.foundations)},
                    {"load_cases", jsonOf(summary.loadcases)}};
    // Paths need not be UTF-8.
    std::cout << json.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}

}  // namespace

int show(const std::string &path, bool json) {
    Document document(path);
    document.build();
    const Summary summary = summaryOf(document);
    if (json)
        printJson(path, summary);
    else
        printText(summary);
    return Clean;
}

}  // namespace varnel::tool
