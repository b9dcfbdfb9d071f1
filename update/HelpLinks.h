#pragma once

#include <QString>

/// Where help, support and licence lie, by the language in use. Main thread only. An empty text opens
/// nothing.
namespace links
{

/// What the help is asked about.
enum class Topic { DiskStatus, SmartStatus, DiskPartition, ScanDisk, CloneDisk, Settings, Window };

/// Address of the help page. A program that stands alone has one page for all topics. Empty in Chinese.
QString helpPage(Topic topic);

/// Path of the help file, for a program whose help is not online.
QString helpFile();

/// Mail address of the support, and what it is called.
QString supportAddress();
QString supportName();

/// Path or address of the licence agreement.
QString agreement();

/// Opens the help on `topic`, online or from its file.
void openHelp(Topic topic);

} // namespace links
