#pragma once

// The program folder and the range texts of the analysis tests.

#include "ranges/range_text.h"
#include "testing/range_texts.h"
#include "testing/temporary_program.h"

namespace quillon {

using RangeFolder = TemporaryProgram;

}  // namespace quillon
