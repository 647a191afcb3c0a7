#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// One control of each class. The test decides what its procedures do.
class TestPanel final : public FeuilleCalcul {
public:
    explicit TestPanel(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "TestPanel", .Caption = "Panneau d'essai", .Width = 9000, .Height = 7200}}
    {
    }

    // clang-format off
    Label   LblA  {this, "LblA",   {.Caption = "Première valeur", .at = {240, 270, 1800, 255}}};
    TextBox TxtA  {this, "TxtA",   {.at = {2160, 240, 1500, 315}, .label = &LblA}, &TestPanel::TxtA_Change, &TestPanel::TxtA_KeyPress};
    Label   LblB  {this, "LblB",   {.Caption = "Résultat", .at = {240, 630, 1800, 255}}};
    TextBox TxtB  {this, "TxtB",   {.at = {2160, 600, 1500, 315}, .BackColor = 0xFFFFC0, .Locked = true, .label = &LblB}};
    Label   LblC  {this, "LblC",   {.Caption = "Gain & perte", .at = {240, 990, 1800, 255}}};
    TextBox TxtC  {this, "TxtC",   {.at = {2160, 960, 1500, 315}, .MaxLength = 6, .label = &LblC}, &TestPanel::TxtC_Change};
    ListBox LstU  {this, "LstU",   {.Items = {"pF", "nF", "µF"}, .at = {3840, 240, 960, 780}, .label = &LblA}, &TestPanel::LstU_Click, &TestPanel::LstU_GotFocus};
    ListBox LstR  {this, "LstR",   {.Items = {"un", "deux"}, .at = {4980, 240, 960, 780}, .clickOnChosenRow = true, .label = &LblB}, &TestPanel::LstR_Click};
    OptionButton OptX{this, "OptX", {.Caption = "Self & capa", .at = {240, 1440, 1800, 300}}, &TestPanel::OptX_Click};
    OptionButton OptY{this, "OptY", {.Caption = "Capacité", .at = {2160, 1440, 1800, 300}}, &TestPanel::OptY_Click};
    CommandButton BtnGo{this, "BtnGo", {.Caption = "Calculer", .at = {240, 1920, 1500, 375}}, &TestPanel::BtnGo_Click};
    HScrollBar HscrA{this, "HscrA", {.Min = -10, .Max = 100, .Value = 50, .SmallChange = 2, .LargeChange = 10, .at = {240, 2520, 4800, 255}, .label = &LblA}, &TestPanel::Hscr_Change};
    HScrollBar HscrR{this, "HscrR", {.Min = 100, .Max = -10, .Value = 50, .SmallChange = 2, .LargeChange = 10, .at = {240, 2880, 4800, 255}, .label = &LblA}, &TestPanel::Hscr_Change};
    VScrollBar VscrA{this, "VscrA", {.Min = 0, .Max = 100, .Value = 50, .SmallChange = 2, .LargeChange = 10, .at = {6240, 240, 255, 4800}, .label = &LblB}};
    VScrollBar VscrR{this, "VscrR", {.Min = 100, .Max = 0, .Value = 50, .SmallChange = 2, .LargeChange = 10, .at = {6720, 240, 255, 4800}, .label = &LblB}};
    MaskEdBox MebI{this, "MebI", {.at = {2160, 3240, 1500, 315}, .label = &LblC}};
    TextBox TxtM  {this, "TxtM",   {.at = {240, 3720, 3600, 900}, .multiLine = true, .label = &LblC}};
    Frame   Frame1{this, "Frame1", {.Caption = "Cadre", .at = {240, 4800, 3600, 1200}}};
    TextBox TxtF  {this, "TxtF",   {.at = {240, 480, 1500, 315}, .label = &LblC, .container = &Frame1}};
    Line    Line1 {this, "Line1",  {.X1 = 4200, .Y1 = 4800, .X2 = 5640, .Y2 = 5700}};
    Shape   Shape1{this, "Shape1", {.at = {4200, 3720, 1500, 900}}};
    // clang-format on

    std::function<void()> onLoad = [] {};
    std::function<void()> onA = [] {};
    std::function<void(Integer&)> onKey = [](Integer&) {};
    std::function<void()> onRow = [] {};
    std::function<void()> onGo = [] {};
    std::function<void()> onBar = [] {};
    std::vector<std::string> events; ///< in the order in which they came

    using FeuilleCalcul::DoEvents;
    using FeuilleCalcul::MsgBox;

private:
    void Form_Load() override { onLoad(); }
    void TxtA_Change() { record("TxtA_Change", onA); }
    void TxtA_KeyPress(Integer& KeyAscii)
    {
        events.push_back("TxtA_KeyPress " + std::to_string(KeyAscii.value()));
        onKey(KeyAscii);
    }
    void TxtC_Change() { events.emplace_back("TxtC_Change"); }
    void LstU_Click() { record("LstU_Click", onRow); }
    void LstU_GotFocus() { events.emplace_back("LstU_GotFocus"); }
    void LstR_Click() { events.emplace_back("LstR_Click"); }
    void OptX_Click() { events.emplace_back("OptX_Click"); }
    void OptY_Click() { events.emplace_back("OptY_Click"); }
    void BtnGo_Click() { record("BtnGo_Click", onGo); }
    void Hscr_Change() { record("Hscr_Change", onBar); }

    void record(const char* event, const std::function<void()>& then)
    {
        events.emplace_back(event);
        then();
    }
};

} // namespace ondelis
