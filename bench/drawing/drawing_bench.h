// The benches of drawings: each prints its lines.
#pragma once

void BenchSaving();
void BenchMillion();
