#pragma once
// Tests that begin and end on the program's start values.

#include "state/programstate.h"

#include <gtest/gtest.h>

class FreshStateTest : public ::testing::Test {
  protected:
    void SetUp() override { ResetProgramState(); }
    void TearDown() override { ResetProgramState(); }
};
