#ifndef VARNEL_MODEL_VARNELSETUPHELPER_H
#define VARNEL_MODEL_VARNELSETUPHELPER_H

#include "varnel/contracts/Export.h"

/// The counters of one numbering run through a tree of subsystems. Each holds the last number given out.
struct VARNEL_EXPORT VarnelSetupHelper {
    int plateCount = 0;
    int beamCount = 0;
    int holeCount = 0;
    int gapCount = 0;
    int pointBoundaryCount = 0;
    int lineBoundaryCount = 0;  ///< line boundaries and boundaries of plate edges, in one series
    int pointLoadCount = 0;
    int lineLoadCount = 0;
    int areaLoadCount = 0;
    int beamLoadCount = 0;
    int constructionStageCount = 0;  ///< counted by the manager
    int firstSpareCount = 0;         ///< for a derived model
    int secondSpareCount = 0;        ///< for a derived model
};

#endif
