// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QVector>

/// Makes inputs from sound ones. The same seed gives the same inputs, so that one can be made again.
class Mutator
{
public:
    explicit Mutator(quint64 seed) : m_state(seed) {}

    /// A number from 0 up to, not including, `end`; 0 if `end` is 0.
    quint64 below(quint64 end);

    /// One of the sound inputs with a few tables, fields, bytes and pieces changed.
    QByteArray disk(const QVector<QByteArray> &corpus);
    QByteArray volume(const QVector<QByteArray> &corpus);
    QByteArray text(const QVector<QByteArray> &corpus);

private:
    quint64 next();
    quint64 number(quint64 sectors);
    int place(const QByteArray &bytes, int room);
    const QByteArray &pick(const QVector<QByteArray> &corpus);
    void changeBytes(QByteArray *bytes);
    void writeSlot(QByteArray *disk);
    void writeName(QByteArray *disk, quint64 sector);
    void writeGptEntry(QByteArray *disk);
    void changeText(QByteArray *text, const QVector<QByteArray> &corpus);

    quint64 m_state;
};
