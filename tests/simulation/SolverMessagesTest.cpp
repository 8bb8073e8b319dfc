#include "simulation/SolverMessages.h"

#include "support/ContextTranslator.h"

#include <gtest/gtest.h>

using TVR::solverMessage;

namespace {

constexpr char groundwaterHint[] =
    "\n\nPlease change the model size and/or the numerical parameter of the <b>groundwater "
    "model</b>.";
constexpr char heatHint[] =
    "\n\nPlease change the model size and/or the numerical parameter of the <b>heat model</b>.";

} // namespace

TEST(SolverMessage, explainsAnAccuracyThatCanNotBeReached) {
  EXPECT_EQ(solverMessage("CvodeError:: CVode: -2", false),
            QString("The solver could not satisfy the accuracy demanded by the user for some "
                    "internal step.<br>") +
                groundwaterHint);
}

TEST(SolverMessage, explainsFailedErrorTests) {
  EXPECT_EQ(solverMessage("CvodeError:: CVode: -3", true),
            QString("Error test failures occurred too many times during one internal time step or "
                    "minimum step size was reached.<br>") +
                heatHint);
}

TEST(SolverMessage, explainsFailedConvergence) {
  EXPECT_EQ(solverMessage("CvodeError:: CVode: -4", true),
            QString("Convergence test failures occurred too many times during one internal time "
                    "step or minimum step size was reached.<br>") +
                heatHint);
}

TEST(SolverMessage, explainsAFailedInitialisation) {
  EXPECT_EQ(solverMessage("CvodeError:: CVode: -5", false),
            QString("The linear solver's initialization function failed.<br>") + groundwaterHint);
}

TEST(SolverMessage, explainsAnIllegalInput) {
  EXPECT_EQ(solverMessage("CvodeError:: CVodeSVtolerances: -22", false),
            QString("One of the function inputs is illegal.<br>") + groundwaterHint);
}

TEST(SolverMessage, leavesAnyOtherTextAsItIs) {
  for (const char* text : {"CvodeError:: CVode: -1", "CvodeError:: CVode: -6",
                           "KinsolError:: KINSol: -1", "range error", "-20"})
    EXPECT_EQ(solverMessage(text, true), QString(text) + heatHint);
}

TEST(SolverMessage, isInTheLanguageOfUse) {
  const TVR::ContextTranslator translator;
  EXPECT_EQ(solverMessage("CvodeError:: CVode: -22", true),
            QString("Simulation/One of the function inputs is illegal.<br>\n\nSimulation/") +
                QString(heatHint).mid(2));
}

TEST(SolverMessage, looksAtTheEndOfTheTextOnly) {
  EXPECT_EQ(solverMessage("-2 steps", false), QString("-2 steps") + groundwaterHint);
}
