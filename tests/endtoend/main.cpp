#include <gtest/gtest.h>

#include "tests/endtoend/Orphans.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  Orphans::Adopt();
  return RUN_ALL_TESTS();
}
