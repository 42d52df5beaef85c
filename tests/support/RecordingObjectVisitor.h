#ifndef VARNEL_TESTS_SUPPORT_RECORDINGOBJECTVISITOR_H
#define VARNEL_TESTS_SUPPORT_RECORDINGOBJECTVISITOR_H

#include <string>

#include "varnel/geometry/VarnelObjectVisitor.h"

namespace varnel {

/// Remembers which kind of object it was shown last, and where it lives, and answers 7.
class RecordingObjectVisitor : public VarnelObjectVisitor {
  public:
    int visit(VarnelLoadDistributionArea *object) override {
        return record("load distribution area", object);
    }
    int visit(VarnelBeamLoad *object) override { return record("beam load", object); }
    int visit(VarnelAreaLoad *object) override { return record("area load", object); }
    int visit(VarnelLineLoad *object) override { return record("line load", object); }
    int visit(VarnelPointLoad *object) override { return record("point load", object); }
    int visit(VarnelPointBoundary *object) override { return record("point boundary", object); }
    int visit(VarnelLineBoundary *object) override { return record("line boundary", object); }
    int visit(VarnelHole *object) override { return record("hole", object); }
    int visit(VarnelBeam *object) override { return record("beam", object); }
    int visit(VarnelPlate *object) override { return record("plate", object); }
    int visit(VarnelPoint *object) override { return record("point", object); }

    std::string kind;
    const void *object = nullptr;
    int visits = 0;

  private:
    int record(const char *visited, const void *where) {
        kind = visited;
        object = where;
        ++visits;
        return 7;
    }
};

}  // namespace varnel

#endif
