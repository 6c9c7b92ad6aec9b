// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "forms/form.h"
#include "program/control_table.h"

namespace brolk::test {

// One window of the program for the tests that walk all of them.
struct WindowRow {
  const char* name;
  const char* caption;                          // before the window has loaded
  std::function<std::unique_ptr<Form>()> make;  // a fresh one that has not loaded
  std::function<Form&()> get;                   // the program's own
  std::span<const ControlRow> controls;
};

[[nodiscard]] const std::vector<WindowRow>& AllWindows();

// Names the tests that run once for each window.
[[nodiscard]] std::string NameOf(const ::testing::TestParamInfo<std::size_t>& row);

}  // namespace brolk::test
