// Identifiers of the page's dialog template.
#pragma once

#define IDD_SCALE_PAGE 100
#define IDC_SCALE 101
