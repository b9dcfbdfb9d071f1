// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/SettingsStore.h"
#include "ui/dialogs/DialogFrame.h"

#include <QDialog>

class QTextEdit;

/// A dialog that shows a shape and nothing else. The product's questions and messages are kinds of it.
class MessageDialog : public QDialog
{
    Q_OBJECT

public:
    /// Puts other texts in place of the title and of the two lines.
    void SetTexts(const QString &title, const QString &first, const QString &second);

signals:
    void confirmed(); ///< the first of two buttons was pressed
    void dismissed(); ///< the last button was pressed, by hand or by Escape

protected:
    MessageDialog(const DialogShape &shape, QWidget *parent);

    DialogFrame m_Frame;
};

/// Asks before the program ends. Not modal: a job may be started while it is open.
class CloseWgt : public QWidget
{
    Q_OBJECT

public:
    explicit CloseWgt(QWidget *parent = nullptr);

signals:
    void confirmed();
    void dismissed();

private:
    DialogFrame m_Frame;
};

/// Asks whether a running job is to be stopped.
class ConfarmetionClass : public MessageDialog
{
    Q_OBJECT

public:
    explicit ConfarmetionClass(QWidget *parent = nullptr);
};

/// Asks before results on screen are lost by moving to another screen.
class ScanSwitchClass : public MessageDialog
{
    Q_OBJECT

public:
    explicit ScanSwitchClass(QWidget *parent = nullptr);
};

/// Two lines and a close button: asks for a clone target, or tells what must end first.
class DestinitionWarning : public MessageDialog
{
    Q_OBJECT

public:
    explicit DestinitionWarning(QWidget *parent = nullptr);
};

/// Tells that the selected disk has no self-test.
class SelfTestNotSupported : public MessageDialog
{
    Q_OBJECT

public:
    explicit SelfTestNotSupported(QWidget *parent = nullptr);
};

/// The last question before a disk is overwritten; names the two disks.
class CloneWarning : public MessageDialog
{
    Q_OBJECT

public:
    explicit CloneWarning(QWidget *parent = nullptr);

    /// Shows what the disks are called.
    void NameDisks(const QString &source, const QString &destination);
    /// Keeps the start button grey for the time of a double click, so that a second click starts nothing.
    void HoldStart();
};

/// The outcome of a scan or a clone. Hides when it is dismissed; confirmed() asks to save a list.
class InfoDialogClass : public MessageDialog
{
    Q_OBJECT

public:
    explicit InfoDialogClass(QWidget *parent = nullptr);

    QString SecondText() const;
    void SetSecondText(const QString &text);
    /// Shows or hides the button that saves a list. The caller connects confirmed() to the saving.
    void OfferSaving(bool bOffer);

protected:
    /// A screen reader says the outcome, wherever the focus is.
    void showEvent(QShowEvent *event) override;
};

/// Tells that a disk is too warm. Hides when it is dismissed.
class TemperatureWarning : public MessageDialog
{
    Q_OBJECT

public:
    /// Shows which disk it is, or which disks, a line for each.
    void NameDisk(const QString &text);

public slots:
    void OnOk() { hide(); }
    /// Stores that this warning is no longer wanted, and hides it.
    void OnDontShowClicked();

protected:
    /// `setting`: its key, for OnDontShowClicked().
    TemperatureWarning(const DialogShape &shape, const NumberSetting &setting, QWidget *parent);

private:
    const NumberSetting m_Setting;
};

/// The disk is warmer than the warning threshold.
class SmartWarning : public TemperatureWarning
{
    Q_OBJECT

public:
    explicit SmartWarning(QWidget *parent = nullptr);
};

/// The disk is so warm that the PC had better be shut down; confirmed() asks for that.
class ShutDownWarning : public TemperatureWarning
{
    Q_OBJECT

public:
    explicit ShutDownWarning(QWidget *parent = nullptr);
};

/// The plain message box of the update.
class SmallMessageDlg : public QDialog
{
    Q_OBJECT

public:
    explicit SmallMessageDlg(QWidget *parent = nullptr);

    /// Replaces the text: an empty block as heading, a second one if `leadingBlankLines` is below 2, then
    /// `text`.
    void SetText(const QString &text, int leadingBlankLines);

private:
    DialogFrame m_Frame;
    QTextEdit *m_pTextEdit;
};

/// Shows a message of the update in a modal SmallMessageDlg, as its SetText() does, and returns when it was
/// closed. Main thread only.
void ShowUpdateMessage(const QString &text, int leadingBlankLines);
