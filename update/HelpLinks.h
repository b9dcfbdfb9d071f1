// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>

/// Where help, support and licence lie, by the language in use. Main thread only. An empty text opens
/// nothing.
namespace links
{

/// What the help is asked about.
enum class Topic { DiskStatus, SmartStatus, DiskPartition, ScanDisk, CloneDisk, Settings, Window };

/// Address of the help page. A program that stands alone has one page for all topics. Empty in Chinese.
QString helpPage(Topic topic);

/// Path or address of the licence agreement.
QString agreement();

/// The page that a setting names; not valid where that is no page of the web, but a file or a program.
QUrl pageOf(const QString &address);

/// Opens such a page; false where it is none.
bool openPage(const QString &address);

/// Opens the agreement. One that a setting names has to be a page.
void openAgreement();

/// Opens a mail to the support; whatever stands in the setting is its address and nothing else.
void openSupport();

/// Opens the help on `topic`: its page, or the help file where the help is not online.
void openHelp(Topic topic);

} // namespace links
