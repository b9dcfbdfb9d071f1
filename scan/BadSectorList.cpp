// SPDX-License-Identifier: GPL-3.0-or-later
#include "scan/BadSectorList.h"

void BadSectorList::append(qint64 first, qint64 count)
{
    const std::lock_guard lock(m_mutex);
    m_found.add(first, count);
}

void BadSectorList::clear()
{
    const std::lock_guard lock(m_mutex);
    m_found = {};
}

qint64 BadSectorList::count() const
{
    const std::lock_guard lock(m_mutex);
    return m_found.count();
}
