// Precompiled for the tests.
#include "pch_gui.h"

#include <gtest/gtest.h>
