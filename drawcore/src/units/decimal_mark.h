// The decimal mark that numbers are read and written with. Who links the texts of numbers says which it is: the
// database has a setting of the application for it.
#pragma once

namespace drawcore {

char DecimalMark(); // '.' or ','

} // namespace drawcore
