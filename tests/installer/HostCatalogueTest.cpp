#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "installer/HostCatalogue.h"

namespace {

using testing::ElementsAre;

std::vector<std::string> Column(const char* HostSlot::*member) {
  std::vector<std::string> column;
  for (const HostSlot& slot : kHostCatalogue) column.emplace_back(slot.*member);
  return column;
}

TEST(HostCatalogueTest, LabelsStandInTheFixedOrder) {
  EXPECT_THAT(Column(&HostSlot::label),
              ElementsAre("CS3", "CS4", "CS5", "CS5.5", "CS6", "CC", "CC 2014", "CC 2015",
                          "CC 2015.3", "CC 2017", "CC 2018", "CC 2019", "2020", "", "Custom"));
}

TEST(HostCatalogueTest, OnlyTheTwoOldestVersionsTakeThe32BitPlugin) {
  EXPECT_THAT(Column(&HostSlot::pluginResource),
              ElementsAre("Ostrel32", "Ostrel32", "Ostrel64", "Ostrel64", "Ostrel64", "Ostrel64",
                          "Ostrel64", "Ostrel64", "Ostrel64", "Ostrel64", "Ostrel64", "Ostrel64",
                          "Ostrel64", "Ostrel64", "Ostrel64"));
}

TEST(HostCatalogueTest, TheNamedSlotsAreTheLastTwoAndTheDataFolderComesAfterThem) {
  EXPECT_EQ(kHostSlotCount, 15U);
  EXPECT_EQ(kOtherVersionSlot, 13U);
  EXPECT_EQ(kCustomSlot, 14U);
  EXPECT_EQ(kDataFolderStep, 15);
}

}  // namespace
