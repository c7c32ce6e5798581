// The measurements of the sheet: each prints its own lines.
#pragma once

void BenchMerge();
void BenchOpen();
void BenchPages();
void BenchPreview();
void BenchFill();
