#pragma once

#include <QMutex>
#include <QMutexLocker>
#include <QString>

/// A text that one thread writes while another may read it. Reads and writes like a QString.
class SharedText
{
public:
    SharedText &operator=(const QString &text)
    {
        const QMutexLocker lock(&m_mutex);
        m_text = text;
        return *this;
    }

    QString text() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_text;
    }
    operator QString() const { return text(); }

private:
    mutable QMutex m_mutex;
    QString m_text;
};
