// The benchmarks of the sheet; each prints its results.
#pragma once

void BenchMerge();
void BenchInsert();
void BenchOpen();
void BenchPages();
void BenchPreview();
void BenchFill();
void BenchC();
void BenchFields();
