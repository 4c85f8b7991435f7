#include "LazerPicture.h"

namespace LazerPicture {

const char* Name(qint32 LazerType) {
    switch (LazerType) {
    case 1:
        return "pim-B";
    case 2:
        return "pim-C";
    default:
        return "pim-A";
    }
}

} // namespace LazerPicture
