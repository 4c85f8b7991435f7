#include "LazerConfiguration.h"

void LazerConfiguration::Choose(qint32 type) {
    if (type < 0 || type >= kCount) return;
    m_lazerType = type;
    emit changed();
}
