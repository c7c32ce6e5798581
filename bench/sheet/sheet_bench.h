// The measurements of the sheet: each prints its own lines.
#pragma once

void BenchMerge();
void BenchInsert();
void BenchOpen();
void BenchPages();
void BenchPreview();
void BenchFill();
void BenchC();
