// The benchmarks of drawings; each prints its results.
#pragma once

void BenchSaving();
void BenchMillion();
void BenchLayers();
