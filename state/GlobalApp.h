// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/DiskRecords.h"

#include <QObject>
#include <QString>
#include <QTranslator>

#include <array>
#include <atomic>

/// Number of languages that the program knows.
constexpr int LanguageCount = 11;

/// All state that more than one screen needs. One static object, g_App. Filled on the main thread before the
/// first worker starts; the disk list is written by a device-load thread while the main thread shows its busy
/// state.
class GlobalApp : public QObject
{
public:
    /// Never freed: a worker may still walk it while the process ends.
    RecordList<DiskNode> &m_diskList = *new RecordList<DiskNode>;
    DiskNode *&m_pDiskListTail = m_diskList.tail;
    DiskNode *&m_pDiskListHead = m_diskList.head;
    DiskNode *m_pCurrentDisk = nullptr; ///< must be looked up again after a load
    DiskNode *m_pCloneDisk = nullptr;
    quint8 m_nFixedDisks = 0;
    quint8 m_nRemovableDisks = 0;
    /// No disk is listed, as this process may not open those that are there.
    std::atomic<bool> m_bAccessDenied{false};
    quint16 m_nNextLogicalId = 0;
    bool m_bWriteSiblingLanguage = false;
    QString m_strApplicationFolder;
    QString m_strUserName;
    QString m_strScratchSettingsPath;
    float m_fScale = 0.0F;
    QString m_strAppFolderCopy;
    QString m_strSettingsPath;
    QString m_strNativeSettingsPath;
    QString m_strSystemFolder;
    QString m_strSmartctlPath;
    QString m_strSiblingKey1;
    QString m_strSiblingKey2;
    QString m_strSiblingKey3;
    bool m_bUse64BitTool = false;
    bool m_bHelpOnline = false;
    QString m_strSibling1;
    QString m_strSibling2;
    QString m_strSibling3;
    bool m_bGerman = false;
    bool m_bFrench = false;
    bool m_bItalian = false;
    bool m_bSpanish = false;
    bool m_bJapanese = false;
    bool m_bChinese = false;
    bool m_bKorean = false;
    bool m_bEnglish = false;
    bool m_bDutch = false;
    bool m_bBrazil = false;
    bool m_bHindi = false;
    /// In the order English, German, French, Italian, Spanish, Japanese, Chinese, Korean, Dutch, Brazil,
    /// Hindi.
    std::array<bool, LanguageCount> m_abLanguageOffered{};
    bool m_bHideUpdateButton = false;
    bool m_bKoreanImages = false;
    bool m_bShowLanguageMenu = false;
    bool m_bNVMe = false; ///< the last report read was of an NVMe disk
    bool m_bStandalone = false;
    bool m_bKorvaneBrand = false;
    /// By LanguageType: the Qt translator of a language and, behind it, its application translator.
    std::array<QTranslator, 2 * LanguageCount> m_aTranslators;
};

/// The one object.
inline GlobalApp g_App;
