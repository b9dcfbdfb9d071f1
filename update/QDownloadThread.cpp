// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/QDownloadThread.h"

#include "update/UpdateFetch.h"

QDownloadThread::QDownloadThread(QObject *parent) : QThread(parent) {}

QDownloadThread::~QDownloadThread()
{
    wait();
}

void QDownloadThread::run()
{
    emit OnDownloadStart();
    const QString path = update::fetch(m_strUrl, update::installerName(), m_limits);
    m_held = path.isEmpty() ? nullptr : Platform::current().HoldFile(path);
    if (m_held && m_held->size() > 0) {
        emit OnDownloadFinish(path);
        return;
    }
    m_held.reset();
    update::removeLeftovers();
    emit OnDownloadFailed();
}
