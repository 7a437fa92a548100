#pragma once
// A fresh program, as at start-up: no form loaded and every subsystem's state
// at its defaults. Tests, fuzz targets and benchmarks begin here.

namespace ostraline {

void ResetProgramState();

}  // namespace ostraline
