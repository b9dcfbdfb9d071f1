#include "platform/HttpDownload.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSaveFile>
#include <QThread>
#include <QUrl>

#include <memory>

namespace
{

constexpr qint32 resultInvalidUrl = static_cast<qint32>(0x800C0002u);
constexpr qint32 resultNotFound = static_cast<qint32>(0x800C0005u);
constexpr qint32 resultDownloadFailure = static_cast<qint32>(0x800C0008u);

qint32 load(const QUrl &url, const QString &path, int limitMs)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return resultDownloadFailure;
    }
    QNetworkRequest request(url);
    request.setTransferTimeout(limitMs);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);

    QNetworkAccessManager manager;
    QEventLoop loop;
    bool written = true;
    const std::unique_ptr<QNetworkReply> reply(manager.get(request));
    const auto take = [&] {
        const QByteArray bytes = reply->readAll();
        written = written && file.write(bytes) == bytes.size();
    };
    QObject::connect(reply.get(), &QNetworkReply::readyRead, &loop, take);
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    if (!reply->isFinished()) {
        loop.exec();
    }
    take();
    if (reply->error() != QNetworkReply::NoError) {
        return resultNotFound;
    }
    return written && file.commit() ? 0 : resultDownloadFailure;
}

} // namespace

qint32 httpDownload(const QString &url, const QString &path, int limitMs)
{
    const QUrl parsed(url);
    if (!parsed.isValid() || parsed.scheme().isEmpty()) {
        return resultInvalidUrl;
    }
    qint32 result = resultDownloadFailure;
    // A thread of its own has the event loop that the transfer needs; the caller's stays untouched.
    const std::unique_ptr<QThread> worker(QThread::create([&] { result = load(parsed, path, limitMs); }));
    worker->start();
    worker->wait();
    return result;
}
