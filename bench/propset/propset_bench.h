// The benchmarks of property sets; each prints its results.
#pragma once

void BenchStreams();
void BenchGrowth();
void BenchAllocations();
void BenchPrograms();
