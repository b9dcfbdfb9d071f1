// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/screens/SaveListButton.h"

#include "reports/SmartReport.h"
#include "scan/LastScan.h"
#include "scan/ScanGlobals.h"
#include "ui/dialogs/MessageDialog.h"
#include "ui/dialogs/SavePath.h"
#include "ui/screens/Page.h"
#include "ui/widgets/Style.h"

#include <QEvent>

SaveListButton::SaveListButton(QWidget *parent) : QPushButton(parent)
{
    style::styleButton(this, style::ButtonRole::Light);
    setFixedHeight(style::px(32));
    setEnabled(false);
    retranslate();
    connect(this, &QPushButton::clicked, this, &SaveListButton::save);
}

void SaveListButton::begin(const ScanRecord &record)
{
    m_record = record;
    setEnabled(false);
}

void SaveListButton::end(ScanRecord::End how)
{
    m_record.end = how;
    lastscan::keep(m_record, scanrecord::badSectors(m_record, g_BadSectors));
    setEnabled(m_record.canBeSaved(g_BadSectors));
}

void SaveListButton::save()
{
    const QString path =
        askForPath(window(), tr("Save List"), fileNamePart(scanrecord::suggestedName(m_record)),
                   {{QStringLiteral("*.txt"), scanrecord::ListEnding},
                    {QStringLiteral("*.map"), scanrecord::MapEnding}});
    // The results may have been dropped while the dialog was open.
    if (path.isEmpty() || (isEnabled() && scanrecord::save(path, m_record, g_BadSectors)))
        return;
    if (!m_pFailedBox)
        m_pFailedBox = pagelook::named(new InfoDialogClass(window()), "m_pFailedBox");
    m_pFailedBox->SetTexts(tr("Save List"), tr("The list could not be saved."), QString());
    style::centreOn(m_pFailedBox, window()->geometry());
    m_pFailedBox->show();
}

void SaveListButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QPushButton::changeEvent(event);
}

void SaveListButton::retranslate()
{
    setText(tr("Save List"));
    setAccessibleName(text());
    setAccessibleDescription(tr("Saves the bad sectors as a text or as a map file of GNU ddrescue"));
    setToolTip(accessibleDescription());
}
