#include "auxiliary/information.h"

#include "support/telarium_test.h"

namespace telarium {
namespace {

using InformationTest = TelariumTest;

TEST_F(InformationTest, StartsTheFirstProgramThatThereIsOrSaysThatThereIsNone) {
  machine.program = "hardinfo";
  StartSysInfo();
  ASSERT_FALSE(machine.tried.empty());
  EXPECT_EQ(machine.tried.back(), "hardinfo");
  machine.program.clear();
  StartSysInfo();
  EXPECT_EQ(user.TakeTexts(),
            std::vector<std::string>{"Informazioni di sistema non disponibili in questo momento"});
  EXPECT_EQ(TitoloConVersione(), "Telarium - Versione  7. 0. 1");
}

}  // namespace
}  // namespace telarium
