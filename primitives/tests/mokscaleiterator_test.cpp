#include "mokscaleiterator.h"

#include <gtest/gtest.h>

#include "capture.h"

TEST(ScaleIterator, ListsFactorsOnlyForAFunctionWhoseDescriptorNamesThem) {
  mokScaleIterator scale;
  const char* const rows[][2] = {{"qorsConvert_32f16s_Fix", "ScaleFactor = 0; 1; 2; -1"},
                                 {"qorsSfs_16s_I", " = 0"}};
  for (const auto& [name, wanted] : rows) {
    scale.init(name);
    EXPECT_EQ(scale.description(), wanted) << name;
  }
  scale.init("qorsAdd_16s_Sfs", 3, -1, 0, 5, 5, 31);
  EXPECT_EQ(scale.defaultString(), "3; -1; 0; 5; 5; 31");
}
