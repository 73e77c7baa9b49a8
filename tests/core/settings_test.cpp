#include "core/settings.h"

#include <set>
#include <string>
#include <tuple>

#include <gtest/gtest.h>

namespace tricklet {
namespace {

TEST(Settings, DefaultsAndRoundTrip) {
  MemoryStore store;
  Settings settings = LoadSettings(store);
  EXPECT_EQ(settings, Settings());

  settings.cardDesign = CardDesign::LargeIndex;
  settings.suitFontSize = 14.5;
  settings.pbnBids = false;
  settings.hgFont[0].name = "Caf\u00e9 Sans";
  settings.hgFont[1].forecolour.value = 0x0000FF;
  SaveSettings(settings, store);
  EXPECT_EQ(LoadSettings(store), settings);
  EXPECT_EQ(store.Read("Tricklet", "PBNBids"), "False");
  EXPECT_FALSE(store.Read("macro", "library")) << "the root and library are not options";
  EXPECT_FALSE(store.Read("Tricklet", "ShowMessage")) << "only the notice writes this";
}

TEST(Settings, WhatCannotBeReadTakesItsDefault) {
  const std::tuple<const char*, const char*, const char*> kCases[] = {
      {"Tricklet", "CardDesign", "9"},     {"Tricklet", "CardDesign", "1.5"},
      {"Tricklet", "CardDesign", ""},      {"Tricklet", "CardsFaces", "yes"},
      {"Tricklet", "CardDesign", "0"},     {"Tricklet", "CardsFaces", "1.5"},
      {"Tricklet", "ColourScheme", "-1"},  {"Tricklet", "EditMethod", "4"},
      {"Tricklet", "ShowMessage", "-1"},   {"HGFont1", "Size", "5.9"},
      {"Tricklet", "SuitFontSize", "nan"}, {"Tricklet", "SuitFontSize", "1e99"},
      {"HGFont0", "Forecolour", "&HXYZ"},  {"HGFont0", "Size", "14 points"}};
  for (const auto& [section, key, text] : kCases) {
    MemoryStore store;
    store.Write(section, key, text);
    EXPECT_EQ(LoadSettings(store), Settings()) << key << " " << text;
  }
}

TEST(Settings, BooleansAndColoursAreReadAsSignedNumbersToo) {
  MemoryStore store;
  for (const auto& [text, value] :
       {std::pair("0", false), {"-1", true}, {"1", true}, {"false", false}, {"TRUE", true}}) {
    store.Write("Tricklet", "AutoLaunch", text);
    store.Write("Tricklet", "AutoMakeable", text);  // its default is the other
    const Settings settings = LoadSettings(store);
    EXPECT_TRUE(settings.autoLaunch == value && settings.autoMakeable == value) << text;
  }
  store.Write("HGFont0", "Forecolour", "-2147483639");
  EXPECT_EQ(LoadSettings(store).hgFont[0].forecolour.value, 0x80000009U);
}

TEST(Settings, EveryKeyIsFoundAndBelongsToAFieldOfItsOwn) {
  Settings settings;
  std::set<const void*> fields;
  for (const SettingEntry& entry : SettingTable()) {
    const std::string name = std::string(entry.section) + "/" + std::string(entry.key);
    EXPECT_EQ(FindSetting(name), &entry) << name;
    fields.insert(
        std::visit([](auto* field) -> const void* { return field; }, entry.field(settings)));
    EXPECT_TRUE(SetFromText(settings, entry, entry.defaultText)) << name;
  }
  EXPECT_EQ(fields.size(), SettingTable().size());
  EXPECT_EQ(FindSetting("carddesign"), FindSetting("Tricklet/CardDesign"));
  EXPECT_EQ(FindSetting("Size"), nullptr) << "there are two fonts";
}

TEST(OverlayStore, KeepsRootAndLibraryFromTheStoreBelow) {
  MemoryStore below;
  below.Write("macro", "library", "Mine");
  OverlayStore overlay(below);
  EXPECT_EQ(overlay.Read("macro", "library"), "Mine");
  overlay.Write("macro", "library", "Other");
  overlay.Write("Tricklet", "CardDesign", "2");
  EXPECT_EQ(overlay.Read("macro", "library"), "Other");
  EXPECT_EQ(below.Read("macro", "library"), "Mine");
  EXPECT_EQ(below.Read("Tricklet", "CardDesign"), "2");

  overlay.Write("macro", "filelocation", "/chosen/");
  EXPECT_EQ(below.Read("macro", "filelocation"), "/chosen/") << "the stored root is in use";
  OverlayStore named(below);
  named.Name("filelocation", "/named/");
  named.Write("macro", "filelocation", "/moved/");
  EXPECT_EQ(named.Read("macro", "filelocation"), "/moved/");
  EXPECT_EQ(below.Read("macro", "filelocation"), "/chosen/");
}

}  // namespace
}  // namespace tricklet
