// The measurements of property sets: each prints its own lines.
#pragma once

void BenchStreams();
void BenchGrowth();
void BenchAllocations();
void BenchPrograms();
