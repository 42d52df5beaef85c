#ifndef VARNEL_APPS_VARNEL_SUMMARY_H
#define VARNEL_APPS_VARNEL_SUMMARY_H

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "varnel/contracts/KzVector3D.h"

namespace varnel::tool {

class Document;

/// What is told of each model.
enum Figure : std::size_t {
    Plates,
    Beams,
    Holes,
    PointSupports,
    LineSupports,
    SupportedEdges,
    Gaps,
    Groups,
    ResultSections,
    PointLoads,
    LineLoads,
    AreaLoads,
    PlateLoads,
    PlateArea,
    PlateVolume,
    BeamLength,
    BeamVolume,
    Weight,
    FigureCount
};
using Figures = std::array<double, FigureCount>;

/// One subsystem with those below it.
struct Node {
    std::string name;
    KzVector3D offset;
    Figures figures{};
    std::vector<Node> children;
};

/// Loads of one case in kN; those of no case have no number.
struct LoadSum {
    std::optional<int> number;
    std::string name;
    KzVector3D force;
};

/// How many members use what is named.
using Uses = std::map<std::string, int>;

struct Summary {
    Node root;
    Figures total{};
    std::vector<LoadSum> loadcases;
    Uses materials;
    Uses sections;
    Uses foundations;
};

/// Of a document that was built.
Summary summaryOf(const Document &document);

}  // namespace varnel::tool

#endif
