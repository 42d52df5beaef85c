#include "varnel/model/DesignDataIndex.h"

#include <gtest/gtest.h>

#include <cmath>
#include <list>
#include <memory>
#include <random>
#include <vector>

#include "varnel/members/VarnelDesignData.h"
#include "varnel/model/VarnelDB.h"

using varnel::DesignDataIndex;

namespace {

using FiveValues = DesignDataIndex::FiveValues;

FiveValues valuesOf(const VarnelDesignData &data) {
    return {data.getTheta(), data.getCoverXu(), data.getCoverYu(), data.getCoverXl(), data.getCoverYl()};
}

template <class Accept>
VarnelDesignData *walk(const std::list<VarnelDesignData *> &records, Accept accept) {
    for (VarnelDesignData *record : records)
        if (record && accept(*record)) return record;
    return nullptr;
}

/// Few different records, with zeros of both signs and now and then a NaN.
VarnelDesignData randomData(std::mt19937 &random) {
    const double thetas[] = {0.0, -0.0, 0.5, std::nan("")};
    VarnelDesignData data(thetas[random() % (random() % 5 == 0 ? 4 : 3)],
                          0.01 * static_cast<double>(random() % 4), 0.01 * static_cast<double>(random() % 4),
                          0.03, 0.04);
    data.setShearAngle(random() % 2 == 0 ? 45.0 : 90.0);
    data.setStressDesignType(static_cast<int>(random() % 2));
    return data;
}

/// One of the setters.
void alter(VarnelDesignData &data, std::mt19937 &random) {
    const VarnelDesignData values = randomData(random);
    switch (random() % 5) {
        case 0:
            data.setTheta(values.getTheta());
            break;
        case 1:
            data.setCoverXu(values.getCoverXu());
            break;
        case 2:
            data.setShearAngle(values.getShearAngle());
            break;
        case 3:
            data.setStressDesignType(values.getStressDesignType());
            break;
        default:
            data = values;
    }
}

}  // namespace

TEST(DesignDataIndex, FindsTheFirstRecordAsAPlainWalkDoes) {
    std::mt19937 random(17);
    std::vector<std::unique_ptr<VarnelDesignData>> owned;
    std::list<VarnelDesignData *> records;
    DesignDataIndex index;
    for (int step = 0; step < 100000; ++step) {
        const VarnelDesignData pattern = randomData(random);
        switch (random() % 6) {
            case 0:
                if (records.size() > 150) break;
                owned.push_back(std::make_unique<VarnelDesignData>(pattern));
                records.push_back(random() % 30 == 0 ? nullptr : owned.back().get());
                index.append(records.back());
                break;
            case 1:
                if (!owned.empty()) alter(*owned[random() % owned.size()], random);
                break;
            case 2:
            case 3:
                ASSERT_EQ(index.find(records, pattern),
                          walk(records, [&](const VarnelDesignData &data) { return data == pattern; }));
                break;
            case 4:
                ASSERT_EQ(index.find(records, valuesOf(pattern)),
                          walk(records, [&](const VarnelDesignData &data) {
                              return valuesOf(data) == valuesOf(pattern);
                          }));
                break;
            default:
                if (random() % 3000 == 0) {
                    index.clear();
                    records.clear();
                    owned.clear();
                }
        }
    }
}

TEST(DesignDataIndex, AListThatHoldsARecordTwiceIsWalked) {
    std::vector<VarnelDesignData> owned(30);
    std::list<VarnelDesignData *> records;
    DesignDataIndex index;
    for (std::size_t i = 0; i < owned.size(); ++i) {
        owned[i].setTheta(static_cast<double>(i));
        records.push_back(&owned[i]);
    }
    EXPECT_EQ(index.find(records, owned[7]), &owned[7]);
    records.push_back(&owned[7]);
    index.append(&owned[7]);
    owned[7].setTheta(100);
    EXPECT_EQ(index.find(records, owned[7]), &owned[7]);
}

TEST(DesignDataIndex, CopiesOfARecordReportToNobody) {
    std::vector<std::unique_ptr<VarnelDesignData>> owned;
    std::list<VarnelDesignData *> records;
    DesignDataIndex index;
    for (int i = 0; i < 30; ++i) {
        owned.push_back(std::make_unique<VarnelDesignData>(i, 0, 0, 0, 0));
        records.push_back(owned.back().get());
    }
    EXPECT_EQ(index.find(records, *owned[3]), owned[3].get());
    VarnelDesignData copied(*owned[3]);
    copied.setTheta(1000);
    EXPECT_EQ(index.find(records, copied), nullptr);
    EXPECT_EQ(index.find(records, *owned[3]), owned[3].get());
}

TEST(DesignDataIndex, AViewOutlivesTheRecordsItWasAskedFor) {
    auto model = std::make_unique<VarnelDB>(nullptr);
    for (int i = 0; i < 30; ++i) model->giveDesignData(i, 0, 0, 0, 0);
    VarnelDB view(*model);
    EXPECT_EQ(view.giveDesignData(5, 0, 0, 0, 0), model->giveDesignData(5, 0, 0, 0, 0));
    model->removeSettings();
    EXPECT_TRUE(model->getDesignParameters().empty());
    EXPECT_NE(model->giveDesignData(5, 0, 0, 0, 0), nullptr);
    model.reset();
    EXPECT_EQ(view.getDesignParameters().size(), 30U);
}
