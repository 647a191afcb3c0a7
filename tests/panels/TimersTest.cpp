#include "forms/Support.h"

#include "panels/timer555/Monostable.h"
#include "panels/timer555/RapportCyclique.h"

namespace ondelis {
namespace {

class TimersTest : public RuntimeTest { };

TEST_F(TimersTest, monostableHasItsOwnValuesBeforeTheMenuGivesOthers)
{
    auto& panel = runtime.get<Monostable>();
    runtime.perform([&] { panel.Show(); });
    EXPECT_EQ(panel.LblRes.Caption.get(), "Résistance :  541 KOhms");
    EXPECT_EQ(panel.LblCapa.Caption.get(), "Condensateur :  78 nF");
    EXPECT_EQ(panel.LblDuree.Caption.get(), "Durée  29.24 ms");
}

TEST_F(TimersTest, monostableWithNoUnitReadsTheBarAlone)
{
    auto& panel = runtime.get<Monostable>();
    runtime.perform([&] {
        panel.Show();
        panel.LstRes.ListIndex = -1;
    });
    EXPECT_EQ(panel.LblRes.Caption.get(), "Résistance :  541 ");
    EXPECT_EQ(panel.LblDuree.Caption.get(), "Durée  29.24 µs");
}

TEST_F(TimersTest, rapportCycliqueAsksForTheUnitOfItsFrequency)
{
    auto& panel = runtime.get<RapportCyclique>();
    runtime.perform([&] {
        panel.Show();
        panel.LstFreq.ListIndex = -1;
    });
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_EQ(host.boxes[0].prompt, "L'unité doit être définie au préalable");
    EXPECT_EQ(host.boxes[0].buttons, 0);
    EXPECT_EQ(host.boxes[0].title, "Ondelis");
}

TEST_F(TimersTest, rapportCycliqueComputesWithNoUnitToo)
{
    auto& panel = runtime.get<RapportCyclique>();
    runtime.perform([&] {
        panel.Show();
        panel.LstFreq.ListIndex = -1;
        panel.HScrlFreq.Value = 441;
    });
    EXPECT_EQ(host.boxes.size(), 2U);
    EXPECT_EQ(panel.LblFreq.Caption.get(), "Frequence  440 Hz");
    EXPECT_EQ(panel.LblR1.Caption.get(), "R1 =  99.15 Ohms");
}

} // namespace
} // namespace ondelis
