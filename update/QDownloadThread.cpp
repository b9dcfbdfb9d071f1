#include "update/QDownloadThread.h"

#include "update/UpdateFetch.h"
#include "update/UpdateLink.h"

#include <QFile>
#include <QFileInfo>

QDownloadThread::QDownloadThread(QObject *parent) : QThread(parent) {}

QDownloadThread::~QDownloadThread()
{
    wait();
}

void QDownloadThread::run()
{
    emit OnDownloadStart();
    const QString path = update::fetch(m_strUrl, update::installerName());
    if (QFileInfo(path).size() > 0) {
        emit OnDownloadFinish(path);
        return;
    }
    if (!path.isEmpty())
        QFile::remove(path);
    emit OnDownloadFailed();
}
