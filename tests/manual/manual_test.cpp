// What the manual shows is what the library gives.

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "manual/calls.h"
#include "manual/examples.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::vector<std::string> pages() {
  std::vector<std::string> found;
  for (const auto& file : std::filesystem::recursive_directory_iterator(KAV_DOCS)) {
    if (file.path().extension() == ".md") found.push_back(file.path().generic_string());
  }
  return found;
}

manual::Outcome outcomeOf(const std::string& page) {
  std::ifstream file(page);
  std::ostringstream text;
  text << file.rdbuf();
  return manual::runExamples(text.str());
}

std::string example(const std::string& lines) { return "```example\n" + lines + "\n```\n"; }

std::vector<std::string> faultsOf(const std::string& lines) {
  return manual::runExamples(example(lines)).faults;
}

}  // namespace

TEST(Manual, EveryNumberIsWhatTheLibraryGives) {
  ASSERT_GT(pages().size(), 10u);
  for (const std::string& page : pages()) {
    for (const std::string& fault : outcomeOf(page).faults) ADD_FAILURE() << page << ", " << fault;
  }
}

TEST(Manual, EveryEntryIsShownWithAResult) {
  std::set<std::string> shown;
  for (const std::string& page : pages()) shown.merge(outcomeOf(page).shown);
  ASSERT_FALSE(catalogue().empty());
  for (const CatalogueEntry& entry : catalogue()) EXPECT_EQ(shown.count(entry.name), 1u) << entry.name;
}

TEST(Manual, ExamplesThatAreRightPass) {
  const manual::Outcome outcome = manual::runExamples(
      "text\n" + example("x = {12.5, missing, 11, 14.25}\n"
                         "VB_V_Mean(x, 4, {False, False, False, False}, {3, 1, 2, 4}) -> 12.9444\n"
                         "VB_M_DuplicateStr({\"a\", \"b\"; \"c\", \"\"}, 2, 2, t)\n"
                         "t -> {\"a\", \"b\"; \"c\", \"\"}\n"
                         "VB_V_Sum(x, 4, nothing, nothing) -> 37.75"));
  EXPECT_THAT(outcome.faults, IsEmpty());
  EXPECT_EQ(outcome.shown, (std::set<std::string>{"VB_M_DuplicateStr", "VB_V_Mean", "VB_V_Sum"}));
}

TEST(Manual, WhatIsWrongIsFound) {
  EXPECT_THAT(faultsOf("VB_V_Sum2Dbl({1, 2}, 2) -> 4"), ElementsAre(HasSubstr("line 2")));
  EXPECT_THAT(faultsOf("VB_V_Sum2Dbl({1, 2.25}, 2) -> 3.19"), ElementsAre(HasSubstr("it is 3.25")));
  EXPECT_THAT(faultsOf("VB_M_Transpose({1, 2; 3, 4}, 2, 2, t)\nt -> {1, 2; 3, 4}"),
              ElementsAre(HasSubstr("1, 2, 3, 4")));
  EXPECT_THAT(faultsOf("VB_M_Transpose({1, 2; 3, 4}, 2, 2, t)\nt -> {1}"),
              ElementsAre(HasSubstr("beyond the end"), HasSubstr("no call wrote it")));
  EXPECT_THAT(faultsOf("VB_M_Transpose({1, 2; 3, 4}, 2, 2, t)"), ElementsAre(HasSubstr("compared")));
  EXPECT_THAT(faultsOf("x = {1}\nx -> {1}"), ElementsAre(HasSubstr("no call wrote it")));
  EXPECT_THAT(faultsOf("VB_V_Sum2Dbl({1, 2}) -> 3"), ElementsAre(HasSubstr("arguments")));
  EXPECT_THAT(faultsOf("VB_V_Sum9({1}, 1) -> 1"), ElementsAre(HasSubstr("no such entry")));
  EXPECT_THAT(faultsOf("VB_V_Sum2Dbl({1, 2"), ElementsAre(HasSubstr("open bracket")));
  EXPECT_THAT(manual::runExamples("```example\nx = {1,").faults, ElementsAre(HasSubstr("no end")));
  EXPECT_THAT(faultsOf("x = {1, 2; 3}"), ElementsAre(HasSubstr("different lengths")));
}
