// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/MainWindow.h"

#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "state/PartitionTexts.h"
#include "ui/screens/DiskPartition.h"
#include "ui/widgets/DonutChartView.h"

namespace
{

constexpr int HeightPerFrame = 300; ///< of the frames' host, in pixels at every scale

} // namespace

void MainWindow::clearPartitions()
{
    m_pDiskPartitionPage->ForgetFrames();
    qDeleteAll(m_listFrames);
    qDeleteAll(m_listNotices);
    g_bNoPartitions = false;
    m_listFrames.clear();
    m_listNotices.clear();
    m_pDiskPartitionPage->m_listSizes.clear();
}

void MainWindow::ShowPartitions(BitLockerMark mark)
{
    // The refresh's end shows them anew.
    if (g_bListsLoading)
        return;
    const DiskNode *node = findPhysicalDisk(PhysicalDriveBase + g_nCurrentDiskIndex);
    const QStringList letters =
        partitiontexts::driveLetters(node && node->pDetails ? node->pDetails->szDrives : QString());
    clearPartitions();
    m_pDiskPartitionPage->m_listSizes = partitiontexts::volumeSizes(letters, g_logicalDisks);
    m_pDiskPartitionPage->ShowSizes();

    const QString text =
        mark == BitLockerMark::Translated ? tr("(BitLocker)") : QStringLiteral("(BitLocker)");
    for (const QString &letter : letters)
        addVolumeFrames(letter, text);
    if (g_bNoPartitions)
        m_listNotices.append(m_pDiskPartitionPage->AddNotice(tr("No Partition Found")));
    m_pDiskPartitionPage->LayOutFrames(m_nFrameCount * HeightPerFrame);
}

void MainWindow::addVolumeFrames(const QString &letter, const QString &mark)
{
    // Counted by letter: the frames of a later letter take the places of the first ones again.
    m_nFrameCount = 0;
    const QVector<int> disks = partitiontexts::disksOfVolume(letter, g_App.m_diskList);
    for (const LogicalDiskRecord &volume : g_logicalDisks) {
        if (volume.szCaption.text() != letter)
            continue;
        const VolumeTexts texts{partitiontexts::volumeName(volume, mark),
                                partitiontexts::healthWord(
                                    disks.isEmpty() ? QVector<int>{volume.nDiskIndex} : disks, g_wmicDisks),
                                partitiontexts::spaceText(volume, g_App.m_bKorean),
                                partitiontexts::percentText(volume)};
        m_listFrames.append(m_pDiskPartitionPage->AddFrame(m_nFrameCount, texts));
        ++m_nFrameCount;
    }
}

void MainWindow::retranslatePartitions()
{
    if (isOnShow(navigation::DiskPartitionScreen))
        ShowPartitions(BitLockerMark::Translated);
}
