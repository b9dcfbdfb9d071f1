// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/AttributeColumns.h"

#include <QList>
#include <QTest>

class AttributeColumnsTest : public QObject
{
    Q_OBJECT

private slots:
    void widthsFollowTheScaleButForNvme_data()
    {
        QTest::addColumn<bool>("nvme");
        QTest::addColumn<int>("scale");
        QTest::addColumn<QList<int>>("widths");
        QTest::newRow("as designed") << false << 100 << QList<int>{55, 150, 90, 90, 70, 90, 90};
        QTest::newRow("truncated") << false << 125 << QList<int>{68, 187, 112, 112, 87, 112, 112};
        QTest::newRow("NVMe") << true << 100 << QList<int>{55, 300, 90};
        QTest::newRow("NVMe, unscaled") << true << 150 << QList<int>{55, 300, 90};
    }

    void widthsFollowTheScaleButForNvme()
    {
        QFETCH(bool, nvme);
        QFETCH(int, scale);
        QFETCH(QList<int>, widths);
        QList<int> visible;
        for (const attributecolumns::Column &column : attributecolumns::columns(nvme)) {
            if (!column.hidden)
                visible.append(attributecolumns::width(column, nvme, scale));
        }
        QCOMPARE(visible, widths);
    }

    void headerFont_data()
    {
        QTest::addColumn<int>("scale");
        QTest::addColumn<bool>("wideLanguage");
        QTest::addColumn<int>("pixels");
        QTest::newRow("1.0") << 100 << false << 14;
        QTest::newRow("1.0, wide words") << 100 << true << 14;
        QTest::newRow("1.25") << 125 << false << 18;
        QTest::newRow("1.25, wide words") << 125 << true << 17;
        QTest::newRow("1.5") << 150 << false << 22;
        QTest::newRow("2.0, wide words") << 200 << true << 21;
        QTest::newRow("below the sets") << 75 << false << 0;
    }

    void headerFont()
    {
        QFETCH(int, scale);
        QFETCH(bool, wideLanguage);
        QFETCH(int, pixels);
        QCOMPARE(attributecolumns::headerFontPixels(scale, wideLanguage), pixels);
    }
};

QTEST_GUILESS_MAIN(AttributeColumnsTest)
#include "tst_AttributeColumns.moc"
