// SPDX-License-Identifier: MIT
// Nothing but a place for the compiled headers of the tests without the toolkit.
#include <gtest/gtest.h>
