#ifndef VARNEL_TESTS_SUPPORT_RECORDINGOBJECTVISITOR_H
#define VARNEL_TESTS_SUPPORT_RECORDINGOBJECTVISITOR_H

#include <string>

#include "varnel/geometry/VarnelObjectVisitor.h"

namespace varnel {

/// Remembers which kind of object it was shown last, and where it lives, and answers 7.
class RecordingObjectVisitor : public VarnelObjectVisitor {
  public:
    int visit(VarnelLoadDistributionArea *visited) override {
        return record("load distribution area", visited);
    }
    int visit(VarnelBeamLoad *visited) override { return record("beam load", visited); }
    int visit(VarnelAreaLoad *visited) override { return record("area load", visited); }
    int visit(VarnelLineLoad *visited) override { return record("line load", visited); }
    int visit(VarnelPointLoad *visited) override { return record("point load", visited); }
    int visit(VarnelPointBoundary *visited) override { return record("point boundary", visited); }
    int visit(VarnelLineBoundary *visited) override { return record("line boundary", visited); }
    int visit(VarnelHole *visited) override { return record("hole", visited); }
    int visit(VarnelBeam *visited) override { return record("beam", visited); }
    int visit(VarnelPlate *visited) override { return record("plate", visited); }
    int visit(VarnelPoint *visited) override { return record("point", visited); }

    std::string kind;
    const void *object = nullptr;
    int visits = 0;

  private:
    int record(const char *name, const void *address) {
        kind = name;
        object = address;
        ++visits;
        return 7;
    }
};

}  // namespace varnel

#endif
