// The pages of a sheet that the host describes by records.
#pragma once

#include <orlo_c.h>

class CGraphicPropertySheet;

namespace orlo {

// Adds the pages of the record that are for one of the selected graphics. Throws CallError if one is not valid.
void AddPages(const OrloSheet& record, CGraphicPropertySheet& sheet);

} // namespace orlo
