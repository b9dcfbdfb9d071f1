// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;

/// Stands in the place of every screen while this process may open no disk: says so, and how to start the
/// program with the rights to.
class AccessNotice : public QWidget
{
    Q_OBJECT

public:
    explicit AccessNotice(QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    QLabel *addText(const QString &name, const QFont &font);
    void setTexts();

    QLabel *m_pHeading = nullptr;
    QLabel *m_pReason = nullptr;
    QLabel *m_pAdvice = nullptr;
    QLabel *m_pCommand = nullptr; ///< to be copied; hidden where the desktop has an entry of its own
};
