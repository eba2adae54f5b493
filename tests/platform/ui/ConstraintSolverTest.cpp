#include <velmora/platform/ui/ConstraintSolver.h>

#include <gtest/gtest.h>

#include <limits>

namespace velmora {
namespace {

const LinearExpression x = LinearExpression::variable(0);
const LinearExpression y = LinearExpression::variable(1);
const LinearExpression z = LinearExpression::variable(2);

TEST(ConstraintSolver, AVariableIsOpenUntilAnEquationFixesIt) {
  ConstraintSolver solver(2);
  EXPECT_EQ(solver.value(0), std::nullopt);
  EXPECT_TRUE(solver.add(x - 3));
  EXPECT_EQ(solver.value(0), 3);
  EXPECT_EQ(solver.value(1), std::nullopt);
}

TEST(ConstraintSolver, SolvesEquationsThatDependOnEachOther) {
  ConstraintSolver solver(3);
  EXPECT_TRUE(solver.add(x + y + z - 6));
  EXPECT_TRUE(solver.add(x - y + z - 2));
  EXPECT_EQ(solver.value(0), std::nullopt) << "only the sum of x and z is known";
  EXPECT_EQ(solver.value(1), 2);
  EXPECT_TRUE(solver.add(x * 2 + y - z - 1));
  EXPECT_NEAR(*solver.value(0), 1, 1e-12);
  EXPECT_NEAR(*solver.value(1), 2, 1e-12);
  EXPECT_NEAR(*solver.value(2), 3, 1e-12);
}

TEST(ConstraintSolver, AnEquationAddedLaterReachesTheVariablesThatDependOnIt) {
  ConstraintSolver solver(3);
  solver.add(x - y - 1);
  solver.add(y - z - 1);
  EXPECT_EQ(solver.value(0), std::nullopt);
  solver.add(z - 1);
  EXPECT_EQ(solver.value(0), 3);
  EXPECT_EQ(solver.value(1), 2);
}

TEST(ConstraintSolver, AnOpenVariableThatCancelsLeavesTheOthersFixed) {
  ConstraintSolver solver(3);
  solver.add(x - y + z);
  solver.add(y - z - 5);
  EXPECT_EQ(solver.value(0), 5);
  EXPECT_EQ(solver.value(1), std::nullopt);
}

TEST(ConstraintSolver, AnEquationThatFollowsFromOthersSaysNothingNew) {
  ConstraintSolver solver(2);
  solver.add(x - y);
  solver.add(y - 4);
  EXPECT_FALSE(solver.add(x - 4));
  EXPECT_FALSE(solver.add(x * 3 + y - 16));
  EXPECT_EQ(solver.value(0), 4);
}

TEST(ConstraintSolver, AContradictionGivesWayToTheEquationsBeforeIt) {
  ConstraintSolver solver(2);
  solver.add(x - 4);
  EXPECT_FALSE(solver.add(x - 5));
  EXPECT_FALSE(solver.add(x - x + 1));
  EXPECT_FALSE(solver.add(1));
  EXPECT_EQ(solver.value(0), 4);
}

TEST(ConstraintSolver, AVariableThatOccursTwiceCountsTwice) {
  ConstraintSolver solver(1);
  EXPECT_TRUE(solver.add(x + x - 3));
  EXPECT_EQ(solver.value(0), 1.5);
}

TEST(ConstraintSolver, NumbersThatAreNotFiniteAreRefused) {
  const double infinity = std::numeric_limits<double>::infinity();
  ConstraintSolver solver(1);
  EXPECT_FALSE(solver.add(x - infinity));
  EXPECT_FALSE(solver.add(x * std::numeric_limits<double>::quiet_NaN() - 1));
  EXPECT_TRUE(solver.add(x - 1));
  EXPECT_EQ(solver.value(0), 1);
}

TEST(ConstraintSolver, WithoutVariablesEveryEquationGivesWay) {
  ConstraintSolver solver(0);
  EXPECT_FALSE(solver.add(1));
  EXPECT_FALSE(solver.add(0));
}

TEST(ConstraintSolver, AChainOfAMonthIsSolvedToItsEnd) {
  constexpr std::size_t kDays = 31;
  ConstraintSolver solver(2 * kDays);
  const auto top = [](std::size_t day) { return LinearExpression::variable(2 * day); };
  const auto height = [](std::size_t day) { return LinearExpression::variable(2 * day + 1); };
  solver.add(top(0));
  for (std::size_t day = 1; day < kDays; ++day) solver.add(top(day) - top(day - 1) - height(day - 1));
  for (std::size_t day = 0; day < kDays; ++day) solver.add(height(day) - 80);
  for (std::size_t day = 0; day < kDays; ++day) EXPECT_EQ(solver.value(2 * day), 80.0 * double(day));
}

}  // namespace
}  // namespace velmora
