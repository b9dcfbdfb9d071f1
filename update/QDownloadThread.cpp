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
    if (!update::g_publisherKey.isEmpty()) {
        loadTrusted();
        return;
    }
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

void QDownloadThread::loadTrusted()
{
    using Result = update::TrustedFetch::Result;
    m_trusted = std::make_unique<update::TrustedFetch>();
    const Result result = m_trusted->load(m_strLink, m_strInstalled, m_limits.milliseconds);
    m_refused = result == Result::Refused;
    if (result == Result::Verified)
        emit OnDownloadFinish(m_trusted->path());
    else
        emit OnDownloadFailed();
}

bool QDownloadThread::mayStart()
{
    m_refused = m_refused || (m_trusted && !m_trusted->isUnchanged());
    if (m_refused) {
        m_trusted.reset(); // it holds the file
        update::removeKept();
    }
    return !m_refused;
}
