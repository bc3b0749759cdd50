#pragma once

#include <benchmark/benchmark.h>
#include <string>

#include "base/ports.h"

namespace ng {

/// Imports the character file at `path` over and over.
void MeasureImport(benchmark::State& state, Files& files, const std::string& path);

/// What an import is compared with: reads the same file and splits it into lines.
void MeasureReadingLines(benchmark::State& state, Files& files, const std::string& path);

}  // namespace ng
