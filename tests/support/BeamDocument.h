#ifndef VARNEL_TESTS_SUPPORT_BEAMDOCUMENT_H
#define VARNEL_TESTS_SUPPORT_BEAMDOCUMENT_H

#include <gtest/gtest.h>

#include <string>

#include "tests/support/Document.h"
#include "varnel/members/VarnelBeam.h"

/// Tests of beams in a document.
class BeamDocument : public testing::Test {
  protected:
    VarnelBeam *readBeam(const std::string &attributes, const std::string &content = "") {
        document.readSubSystem("<BEAMS><BEAM " + attributes + ">" + content + "</BEAM></BEAMS>");
        return document.model().getBeams().back();
    }
    VarnelBeam *addBeam() {
        VarnelBeam *beam = document.model().giveBeam(true);
        beam->setLine(KzVector3D(0, 0, 0), KzVector3D(4, 0, 0), 0);
        return beam;
    }
    const KzXmlData *writtenBeam() {
        document.exchange().updateSystem(&document.manager);
        return document.find({"SUBSYSTEM", "BEAMS", "BEAM"});
    }

    Document document;
};

#endif
