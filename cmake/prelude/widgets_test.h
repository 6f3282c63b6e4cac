// Parsed once for the files of a target that names it: see cmake/Prelude.cmake. Included by nothing else.
#include "widgets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
