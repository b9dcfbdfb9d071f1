<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Velmora Halvane</source>
        <translation>Velmora Halvane について</translation>
    </message>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>License Agreement</source>
        <translation>使用許諾契約</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>AboutDlg</name>
    <message>
        <source>Version </source>
        <translation>バージョン </translation>
    </message>
</context>
<context>
    <name>AccessNotice</name>
    <message>
        <source>No disk can be opened</source>
        <translation>開けるディスクがありません</translation>
    </message>
    <message>
        <source>Velmora Halvane needs the rights of an administrator to open disks. Without them nothing can be said of their health.</source>
        <translation>Velmora Halvane がディスクを開くには管理者権限が必要です。権限がないと、ディスクの健康状態は分かりません。</translation>
    </message>
    <message>
        <source>Close the program, right-click its icon and choose &quot;Run as administrator&quot;.</source>
        <translation>プログラムを終了し、アイコンを右クリックして「管理者として実行」を選択してください。</translation>
    </message>
    <message>
        <source>Close the program and start it as root. This command does it in a terminal:</source>
        <translation>プログラムを終了し、root として起動してください。ターミナルでは次のコマンドを使います:</translation>
    </message>
</context>
<context>
    <name>AttributeCatalogue</name>
    <message>
        <source>Raw Read Error Rate</source>
        <translation>リードエラーレート</translation>
    </message>
    <message>
        <source>Spin Up Time</source>
        <translation>スピンアップ時間</translation>
    </message>
    <message>
        <source>Start Stop Count</source>
        <translation>起動/停止回数</translation>
    </message>
    <message>
        <source>Reallocated Sector Count</source>
        <translation>代替処理済みセクタ数</translation>
    </message>
    <message>
        <source>Seek Error Rate</source>
        <translation>シークエラーレート</translation>
    </message>
    <message>
        <source>Power On Hours</source>
        <translation>通電時間</translation>
    </message>
    <message>
        <source>Spin Retry Count</source>
        <translation>スピンリトライ回数</translation>
    </message>
    <message>
        <source>Calibration Retry Count</source>
        <translation>キャリブレーション再試行回数</translation>
    </message>
    <message>
        <source>Power Cycle Count</source>
        <translation>電源投入回数</translation>
    </message>
    <message>
        <source>Power-Off Retract Count</source>
        <translation>電源断による退避回数</translation>
    </message>
    <message>
        <source>Load Cycle Count</source>
        <translation>ロード/アンロード回数</translation>
    </message>
    <message>
        <source>Temperature Celsius</source>
        <translation>温度 (摂氏)</translation>
    </message>
    <message>
        <source>Reallocated Event Count</source>
        <translation>代替処理発生回数</translation>
    </message>
    <message>
        <source>Current Pending Sector Count</source>
        <translation>代替処理保留中セクタ数</translation>
    </message>
    <message>
        <source>Offline Uncorrectable</source>
        <translation>オフライン訂正不可セクタ</translation>
    </message>
    <message>
        <source>UDMA CRC Error Count</source>
        <translation>UDMA CRC エラー数</translation>
    </message>
    <message>
        <source>Multi Zone Error Rate</source>
        <translation>マルチゾーンエラーレート</translation>
    </message>
    <message>
        <source>Available Reserved Space</source>
        <translation>予約領域の残量</translation>
    </message>
    <message>
        <source>SSD Program Fail Count</source>
        <translation>SSD 書き込み失敗回数</translation>
    </message>
    <message>
        <source>SSD Erase Fail Count</source>
        <translation>SSD 消去失敗回数</translation>
    </message>
    <message>
        <source>SSD Wear Leveling Count</source>
        <translation>SSD ウェアレベリング回数</translation>
    </message>
    <message>
        <source>Unexpected power loss count</source>
        <translation>予期しない電源断の回数</translation>
    </message>
    <message>
        <source>Throughput Performance</source>
        <translation>スループット性能</translation>
    </message>
    <message>
        <source>Read Channel Margin</source>
        <translation>リードチャネルマージン</translation>
    </message>
    <message>
        <source>Seek Time Performance</source>
        <translation>シークタイム性能</translation>
    </message>
    <message>
        <source>Soft Read Error Rate</source>
        <translation>ソフトリードエラーレート</translation>
    </message>
    <message>
        <source>Runtime Bad Block</source>
        <translation>稼働中の不良ブロック</translation>
    </message>
    <message>
        <source>End-to-End Error </source>
        <translation>エンドツーエンドエラー </translation>
    </message>
    <message>
        <source>Reported Uncorrect</source>
        <translation>報告された訂正不可エラー</translation>
    </message>
    <message>
        <source>Command Timeout</source>
        <translation>コマンドタイムアウト</translation>
    </message>
    <message>
        <source>High Fly Writes</source>
        <translation>ヘッド高浮上時の書き込み</translation>
    </message>
    <message>
        <source>Airflow Temperature Cel</source>
        <translation>エアフロー温度</translation>
    </message>
    <message>
        <source>G-Sense Error Rate</source>
        <translation>衝撃エラーレート</translation>
    </message>
    <message>
        <source>Hardware ECC Recovered</source>
        <translation>ハードウェア ECC 訂正</translation>
    </message>
    <message>
        <source>Multi Zone Error Rate </source>
        <translation>マルチゾーンエラーレート </translation>
    </message>
    <message>
        <source>Write Error Rate</source>
        <translation>書き込みエラーレート</translation>
    </message>
    <message>
        <source>Head Flying Hours</source>
        <translation>ヘッド浮上時間</translation>
    </message>
    <message>
        <source>Total LBAs Written</source>
        <translation>総書き込み LBA 数</translation>
    </message>
    <message>
        <source>Total LBAs Read</source>
        <translation>総読み取り LBA 数</translation>
    </message>
    <message>
        <source>Free Fall Sensor</source>
        <translation>落下センサー</translation>
    </message>
    <message>
        <source>Critical Warning</source>
        <translation>重大な警告</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Available Spare</source>
        <translation>予備領域の残量</translation>
    </message>
    <message>
        <source>Available Spare Threshold</source>
        <translation>予備領域のしきい値</translation>
    </message>
    <message>
        <source>Percentage Used</source>
        <translation>寿命の使用率</translation>
    </message>
    <message>
        <source>Data Units Read</source>
        <translation>読み取りデータ量</translation>
    </message>
    <message>
        <source>Data Units Written</source>
        <translation>書き込みデータ量</translation>
    </message>
    <message>
        <source>Host Read Commands</source>
        <translation>ホスト読み取りコマンド数</translation>
    </message>
    <message>
        <source>Host Write Commands</source>
        <translation>ホスト書き込みコマンド数</translation>
    </message>
    <message>
        <source>Controller Busy Time</source>
        <translation>コントローラー稼働時間</translation>
    </message>
    <message>
        <source>Power Cyles</source>
        <translation>電源投入回数</translation>
    </message>
    <message>
        <source>Unsafe Shutdowns</source>
        <translation>不正なシャットダウン回数</translation>
    </message>
    <message>
        <source>Media and Data Integrity Errors</source>
        <translation>データ整合性エラー数</translation>
    </message>
    <message>
        <source>Error Information Log Entries</source>
        <translation>エラーログの件数</translation>
    </message>
</context>
<context>
    <name>AttributeRows</name>
    <message>
        <source>FAILED</source>
        <translation>異常</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>正常</translation>
    </message>
</context>
<context>
    <name>CheckUpdate</name>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>更新を確認しています...</translation>
    </message>
</context>
<context>
    <name>CloneDisk</name>
    <message>
        <source>Not Available</source>
        <translation>利用できません</translation>
    </message>
    <message>
        <source>Disk Number 	: </source>
        <translation>ディスク番号 	: </translation>
    </message>
    <message>
        <source>Model Number	: </source>
        <translation>モデル番号	: </translation>
    </message>
    <message>
        <source>Serial: </source>
        <translation>シリアル番号: </translation>
    </message>
    <message>
        <source>Firmware Revision : </source>
        <translation>ファームウェア : </translation>
    </message>
    <message>
        <source>Interface Type	   : </source>
        <translation>インターフェース	   : </translation>
    </message>
    <message>
        <source>Capacity	: </source>
        <translation>容量	: </translation>
    </message>
    <message>
        <source>Total Sector	   : </source>
        <translation>総セクタ数	   : </translation>
    </message>
    <message>
        <source>Model Number : </source>
        <translation>モデル番号 : </translation>
    </message>
    <message>
        <source>Capacity           : </source>
        <translation>容量           : </translation>
    </message>
    <message>
        <source>ATA Disk</source>
        <translation>ATA ディスク</translation>
    </message>
    <message>
        <source> hours</source>
        <translation> 時間</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> 分</translation>
    </message>
    <message>
        <source>Source and destination disks are same.</source>
        <translation>コピー元とコピー先のディスクが同じです。</translation>
    </message>
    <message>
        <source>Destination disk size is smaller than source disk.</source>
        <translation>コピー先のディスクがコピー元のディスクより小さいです。</translation>
    </message>
    <message>
        <source>Clone Disk</source>
        <translation>ディスクのクローン</translation>
    </message>
    <message>
        <source>Select different destination disk.</source>
        <translation>別のコピー先ディスクを選択してください。</translation>
    </message>
    <message>
        <source>Cloning Failed</source>
        <translation>クローン失敗</translation>
    </message>
    <message>
        <source>Unable to write on destination disk.</source>
        <translation>コピー先のディスクに書き込めません。</translation>
    </message>
    <message>
        <source>Select other destination disk.</source>
        <translation>別のコピー先ディスクを選択してください。</translation>
    </message>
    <message>
        <source>Abort Clone</source>
        <translation>クローンの中止</translation>
    </message>
    <message>
        <source>Cloning Aborted.</source>
        <translation>クローンを中止しました。</translation>
    </message>
    <message>
        <source>Disk Cloning complete.</source>
        <translation>ディスクのクローンが完了しました。</translation>
    </message>
    <message>
        <source>Disk cloning process completed successfully.</source>
        <translation>ディスクのクローンが正常に完了しました。</translation>
    </message>
    <message>
        <source>Cloning aborted.</source>
        <translation>クローンを中止しました。</translation>
    </message>
    <message>
        <source>Cloning process aborted by the user.</source>
        <translation>クローンはユーザーによって中止されました。</translation>
    </message>
    <message>
        <source>Select Destination</source>
        <translation>コピー先を選択</translation>
    </message>
    <message>
        <source>The disks are not there any more.</source>
        <translation>ディスクが見つからなくなりました。</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>メモリが不足しています。</translation>
    </message>
    <message>
        <source>The source disk cannot be opened.</source>
        <translation>コピー元のディスクを開けません。</translation>
    </message>
    <message>
        <source>The destination disk cannot be opened.</source>
        <translation>コピー先のディスクを開けません。</translation>
    </message>
    <message>
        <source>The source disk is not the one that was chosen.</source>
        <translation>コピー元のディスクは選択されたものではありません。</translation>
    </message>
    <message>
        <source>The destination disk is not the one that was chosen.</source>
        <translation>コピー先のディスクは選択されたものではありません。</translation>
    </message>
    <message>
        <source>The source disk has no sectors.</source>
        <translation>コピー元のディスクにセクタがありません。</translation>
    </message>
    <message>
        <source>The system runs from the destination disk.</source>
        <translation>システムはコピー先のディスクから動作しています。</translation>
    </message>
    <message>
        <source>A volume of the destination disk is in use.</source>
        <translation>コピー先のディスクのボリュームが使用中です。</translation>
    </message>
    <message>
        <source>The destination disk is in use.</source>
        <translation>コピー先のディスクが使用中です。</translation>
    </message>
    <message>
        <source>It cannot be found out whether the destination disk is in use.</source>
        <translation>コピー先のディスクが使用中かどうかを確認できません。</translation>
    </message>
    <message>
        <source>The destination disk cannot be written. It may be in use.</source>
        <translation>コピー先のディスクに書き込めません。使用中の可能性があります。</translation>
    </message>
    <message>
        <source>The source disk does not answer any more.</source>
        <translation>コピー元のディスクが応答しなくなりました。</translation>
    </message>
    <message>
        <source>The destination disk does not answer any more.</source>
        <translation>コピー先のディスクが応答しなくなりました。</translation>
    </message>
    <message>
        <source>%1 sectors could not be read and were filled with zeros. %2 sectors could not be written.</source>
        <translation>%1 セクタを読み取れなかったため、ゼロで埋めました。%2 セクタを書き込めませんでした。</translation>
    </message>
    <message>
        <source>The destination disk did not confirm that all data is stored.</source>
        <translation>コピー先のディスクは、すべてのデータが保存されたことを確認しませんでした。</translation>
    </message>
    <message>
        <source>Disk Cloning complete with errors.</source>
        <translation>ディスクのクローンはエラーを伴って完了しました。</translation>
    </message>
    <message>
        <source>Nothing was written on any disk.</source>
        <translation>どのディスクにも書き込んでいません。</translation>
    </message>
    <message>
        <source>The destination disk holds no complete copy.</source>
        <translation>コピー先のディスクには完全なコピーがありません。</translation>
    </message>
    <message>
        <source>Save List</source>
        <translation>リストを保存</translation>
    </message>
    <message>
        <source>The list could not be saved.</source>
        <translation>リストを保存できませんでした。</translation>
    </message>
    <message>
        <source>%1 % of the disk copied</source>
        <translation>ディスクの %1 % をコピーしました</translation>
    </message>
</context>
<context>
    <name>CloningWarningDialog</name>
    <message>
        <source>Clone Disk</source>
        <translation>ディスクのクローン</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>This action will create a clone of the source drive on the destination drive. Make sure that source and destination disk selection is correct since this operation is irreversible.</source>
        <translation>コピー元ドライブのクローンをコピー先ドライブに作成します。この操作は元に戻せないため、コピー元とコピー先のディスクが正しく選択されていることを確認してください。</translation>
    </message>
    <message>
        <source>Existing data on the destination disk will be lost.</source>
        <translation>コピー先ディスクの既存のデータは失われます。</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>Companion</name>
    <message>
        <source>%1 · health %2 %</source>
        <translation>%1 · 健康状態 %2 %</translation>
    </message>
    <message>
        <source>Asleep</source>
        <translation>スリープ中</translation>
    </message>
    <message>
        <source>Asleep · last %1 at %2</source>
        <translation>スリープ中 · 最後は %1 (%2)</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>高温</translation>
    </message>
    <message>
        <source>Warm since %1</source>
        <translation>%1 から高め</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>温度高め</translation>
    </message>
    <message>
        <source>Unknown disk</source>
        <translation>不明なディスク</translation>
    </message>
    <message>
        <source>Disk %1</source>
        <translation>ディスク %1</translation>
    </message>
    <message>
        <source>Missing: check its cable</source>
        <translation>未検出: ケーブルを確認</translation>
    </message>
    <message>
        <source>Failing: back up this disk now</source>
        <translation>故障: 今すぐバックアップを</translation>
    </message>
    <message>
        <source>Does not answer</source>
        <translation>応答しません</translation>
    </message>
    <message>
        <source>Tells nothing of its health</source>
        <translation>健康状態の情報がありません</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>注意が必要です</translation>
    </message>
    <message>
        <source>No disk is watched.</source>
        <translation>監視中のディスクはありません。</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>ほか %1 台</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>たった今</translation>
    </message>
    <message>
        <source>1 minute ago</source>
        <translation>1 分前</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 分前</translation>
    </message>
</context>
<context>
    <name>ConfarmetionDialog</name>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
</context>
<context>
    <name>DestinitionWarningDailog</name>
    <message>
        <source>Clone Disk</source>
        <translation>ディスクのクローン</translation>
    </message>
    <message>
        <source>Select target disk.</source>
        <translation>コピー先ディスクを選択してください。</translation>
    </message>
    <message>
        <source>Select target disk to start cloning process.</source>
        <translation>クローンを開始するには、コピー先ディスクを選択してください。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>DiskPartition</name>
    <message>
        <source>ATA Disk</source>
        <translation>ATA ディスク</translation>
    </message>
</context>
<context>
    <name>DiskStatus</name>
    <message>
        <source>Not Supported</source>
        <translation>非対応</translation>
    </message>
    <message>
        <source>Failed: back up your data</source>
        <translation>不合格: 要バックアップ</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>Not told</source>
        <translation>通知なし</translation>
    </message>
</context>
<context>
    <name>DonutChartView</name>
    <message>
        <source>Disk </source>
        <translation>ディスク </translation>
    </message>
</context>
<context>
    <name>DownloadUpdate</name>
    <message>
        <source>Software Update</source>
        <translation>ソフトウェアの更新</translation>
    </message>
    <message>
        <source>Downloading Files</source>
        <translation>ファイルのダウンロード</translation>
    </message>
</context>
<context>
    <name>Flyout</name>
    <message>
        <source>No disk is watched.</source>
        <translation>監視中のディスクはありません。</translation>
    </message>
    <message>
        <source>Alarms on again</source>
        <translation>警告を再開</translation>
    </message>
    <message>
        <source>Pause alarms</source>
        <translation>警告を一時停止</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
</context>
<context>
    <name>FlyoutRow</name>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Limits…</source>
        <translation>制限値…</translation>
    </message>
    <message>
        <source>Mark as seen</source>
        <translation>確認済みにする</translation>
    </message>
</context>
<context>
    <name>InfoDialog</name>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save List</source>
        <translation>リストを保存</translation>
    </message>
</context>
<context>
    <name>LimitsDialog</name>
    <message>
        <source>Limits of this disk</source>
        <translation>このディスクの制限値</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Limits of its own</source>
        <translation>個別の制限値を使う</translation>
    </message>
    <message>
        <source>Warning Temperature</source>
        <translation>警告温度</translation>
    </message>
    <message>
        <source>Shutdown Temperature</source>
        <translation>シャットダウン温度</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Not Available</source>
        <translation>利用できません</translation>
    </message>
    <message>
        <source>Disk Drive </source>
        <translation>ディスクドライブ </translation>
    </message>
    <message>
        <source>English</source>
        <translation>英語</translation>
    </message>
    <message>
        <source>German</source>
        <translation>ドイツ語</translation>
    </message>
    <message>
        <source>French</source>
        <translation>フランス語</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>イタリア語</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>スペイン語</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中国語</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韓国語</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>オランダ語</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>ポルトガル語 (ブラジル)</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>ヒンディー語</translation>
    </message>
    <message>
        <source>   Disk Status</source>
        <translation>   ディスクの状態</translation>
    </message>
    <message>
        <source>View the health status of your hard disk</source>
        <translation>ハードディスクの健康状態を表示します</translation>
    </message>
    <message>
        <source>   SMART Status</source>
        <translation>   SMART の状態</translation>
    </message>
    <message>
        <source>Detailed SMART status of the hard disk</source>
        <translation>ハードディスクの SMART の状態を詳しく表示します</translation>
    </message>
    <message>
        <source>   Disk Partition</source>
        <translation>   パーティション</translation>
    </message>
    <message>
        <source>View description of partitions in your hard disk</source>
        <translation>ハードディスクのパーティションの説明を表示します</translation>
    </message>
    <message>
        <source>   Scan Disk</source>
        <translation>   ディスクスキャン</translation>
    </message>
    <message>
        <source>Scan your hard disk for bad sectors</source>
        <translation>ハードディスクの不良セクタを検査します</translation>
    </message>
    <message>
        <source>   Clone Disk</source>
        <translation>   ディスクのクローン</translation>
    </message>
    <message>
        <source>Clone hard disk to avoid impending disk issues</source>
        <translation>ハードディスクのクローンを作成し、障害に備えます</translation>
    </message>
    <message>
        <source>Extended Self-test</source>
        <translation>拡張セルフテスト</translation>
    </message>
    <message>
        <source>Short Self-test</source>
        <translation>ショートセルフテスト</translation>
    </message>
    <message>
        <source>Aborted by User</source>
        <translation>ユーザーによる中止</translation>
    </message>
    <message>
        <source>Successfully Completed</source>
        <translation>正常に完了</translation>
    </message>
    <message>
        <source>Failed by Read Element</source>
        <translation>読み取り要素の異常</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>利用できません</translation>
    </message>
    <message>
        <source> days</source>
        <translation> 日</translation>
    </message>
    <message>
        <source> hours</source>
        <translation> 時間</translation>
    </message>
    <message>
        <source>More than 1000</source>
        <translation>1000 超</translation>
    </message>
    <message>
        <source>ID#</source>
        <translation>ID#</translation>
    </message>
    <message>
        <source>ATTRIBUTE_NAME</source>
        <translation>ATTRIBUTE_NAME</translation>
    </message>
    <message>
        <source>FLAG</source>
        <translation>FLAG</translation>
    </message>
    <message>
        <source>VALUE</source>
        <translation>VALUE</translation>
    </message>
    <message>
        <source>SMART/Health Information (NVMe Log</source>
        <translation>SMART/Health Information (NVMe Log</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>良好</translation>
    </message>
    <message>
        <source>Bad</source>
        <translation>不良</translation>
    </message>
    <message>
        <source>Not Supported</source>
        <translation>非対応</translation>
    </message>
    <message>
        <source>Supported</source>
        <translation>対応</translation>
    </message>
    <message>
        <source>NA</source>
        <translation>該当なし</translation>
    </message>
    <message>
        <source>Disk Information:</source>
        <translation>ディスク情報:</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Details:</source>
        <translation>S.M.A.R.T. の詳細:</translation>
    </message>
    <message>
        <source>Model Number:</source>
        <translation>モデル番号:</translation>
    </message>
    <message>
        <source>Serial Number:</source>
        <translation>シリアル番号:</translation>
    </message>
    <message>
        <source>Firmware Version:</source>
        <translation>ファームウェアバージョン:</translation>
    </message>
    <message>
        <source>Capacity:</source>
        <translation>容量:</translation>
    </message>
    <message>
        <source>Sector Size:</source>
        <translation>セクタサイズ:</translation>
    </message>
    <message>
        <source>Local  Time:</source>
        <translation>現地時刻:</translation>
    </message>
    <message>
        <source>Maximum Data Transfer Size:</source>
        <translation>最大データ転送サイズ:</translation>
    </message>
    <message>
        <source>SMART Status:</source>
        <translation>SMART の状態:</translation>
    </message>
    <message>
        <source>Current Temperature:</source>
        <translation>現在の温度:</translation>
    </message>
    <message>
        <source>Performance:</source>
        <translation>性能:</translation>
    </message>
    <message>
        <source>Health:</source>
        <translation>健康状態:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Attribute Name</source>
        <translation>属性名</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Self Test Details:</source>
        <translation>セルフテストの詳細:</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Details</source>
        <translation>S.M.A.R.T. の詳細</translation>
    </message>
    <message>
        <source>Make:</source>
        <translation>メーカー:</translation>
    </message>
    <message>
        <source>Rotation Rate:</source>
        <translation>回転数:</translation>
    </message>
    <message>
        <source>ATA Version:</source>
        <translation>ATA バージョン:</translation>
    </message>
    <message>
        <source>SATA Version:</source>
        <translation>SATA バージョン:</translation>
    </message>
    <message>
        <source>Short Self-test:</source>
        <translation>ショートセルフテスト:</translation>
    </message>
    <message>
        <source>Estimated Completion Time:</source>
        <translation>予想所要時間:</translation>
    </message>
    <message>
        <source>Extended Self-test:</source>
        <translation>拡張セルフテスト:</translation>
    </message>
    <message>
        <source>Last Run Self-test:</source>
        <translation>最後に実行したセルフテスト:</translation>
    </message>
    <message>
        <source>Last Self-Test Result:</source>
        <translation>最後のセルフテストの結果:</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>最悪値</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>しきい値</translation>
    </message>
    <message>
        <source>Raw Value</source>
        <translation>生の値</translation>
    </message>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Report</source>
        <translation>S.M.A.R.T. レポート</translation>
    </message>
    <message>
        <source>The information contained in this report has been generated by the Velmora Halvane profiling process.</source>
        <translation>このレポートの情報は、Velmora Halvane の診断処理によって作成されました。</translation>
    </message>
    <message>
        <source>Velmora Halvane is a product of Korvane.</source>
        <translation>Velmora Halvane は Korvane の製品です。</translation>
    </message>
    <message>
        <source>Velmora Halvane is a product of Velmora.</source>
        <translation>Velmora Halvane は Velmora の製品です。</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>不合格</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>Source disk:     </source>
        <translation>コピー元ディスク:     </translation>
    </message>
    <message>
        <source>Destination disk:    </source>
        <translation>コピー先ディスク:    </translation>
    </message>
    <message>
        <source>Clone Disk</source>
        <translation>ディスクのクローン</translation>
    </message>
    <message>
        <source>Clone Running.</source>
        <translation>クローン実行中です。</translation>
    </message>
    <message>
        <source>Cloning process running.</source>
        <translation>クローンを実行しています。</translation>
    </message>
    <message>
        <source>Please halt the clone process to exit.</source>
        <translation>終了するにはクローンを停止してください。</translation>
    </message>
    <message>
        <source>Scan Disk</source>
        <translation>ディスクスキャン</translation>
    </message>
    <message>
        <source>Scaning Running.</source>
        <translation>スキャン実行中です。</translation>
    </message>
    <message>
        <source>Disk scan running.</source>
        <translation>ディスクスキャンを実行しています。</translation>
    </message>
    <message>
        <source>Please halt the scan process to exit.</source>
        <translation>終了するにはスキャンを停止してください。</translation>
    </message>
    <message>
        <source>SMART Status</source>
        <translation>SMART の状態</translation>
    </message>
    <message>
        <source>Please wait. Application Refreshing...</source>
        <translation>お待ちください。更新しています...</translation>
    </message>
    <message>
        <source>Stop Clone</source>
        <translation>クローンの停止</translation>
    </message>
    <message>
        <source>Cloning can not be resumed from the current stage.</source>
        <translation>クローンは現在の段階から再開できません。</translation>
    </message>
    <message>
        <source>Do you wish to abort the cloning?</source>
        <translation>クローンを中止しますか?</translation>
    </message>
    <message>
        <source>Stop Scan</source>
        <translation>スキャンの停止</translation>
    </message>
    <message>
        <source>Scan can not be resumed from the current stage.</source>
        <translation>スキャンは現在の段階から再開できません。</translation>
    </message>
    <message>
        <source>Do you wish to abort the scan?</source>
        <translation>スキャンを中止しますか?</translation>
    </message>
    <message>
        <source>(BitLocker)</source>
        <translation>(BitLocker)</translation>
    </message>
    <message>
        <source>No Partition Found</source>
        <translation>パーティションが見つかりません</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>ファイルの保存</translation>
    </message>
    <message>
        <source>Self-test can not be resumed from the current stage.</source>
        <translation>セルフテストは現在の段階から再開できません。</translation>
    </message>
    <message>
        <source>Do you wish to abort the Self-test?</source>
        <translation>セルフテストを中止しますか?</translation>
    </message>
    <message>
        <source>Please wait. Getting SMART information...</source>
        <translation>お待ちください。SMART 情報を取得しています...</translation>
    </message>
    <message>
        <source>Graph : </source>
        <translation>グラフ: </translation>
    </message>
    <message>
        <source>Running, no problems found</source>
        <translation>実行中、問題は見つかっていません</translation>
    </message>
    <message>
        <source>Test failed by Read Element</source>
        <translation>読み取り要素の異常によりテスト失敗</translation>
    </message>
    <message>
        <source>Test Interrupted by the Host</source>
        <translation>PC によりテスト中断</translation>
    </message>
    <message>
        <source>Test ended by Fatal or Unknown Error</source>
        <translation>致命的または不明なエラーで終了</translation>
    </message>
    <message>
        <source>Test failed by Unknown Element</source>
        <translation>不明な要素の異常によりテスト失敗</translation>
    </message>
    <message>
        <source>Test failed by Electrical Element</source>
        <translation>電気要素の異常によりテスト失敗</translation>
    </message>
    <message>
        <source>Test failed by Servo Element</source>
        <translation>サーボ要素の異常によりテスト失敗</translation>
    </message>
    <message>
        <source>Test failed, Handling Damage suspected</source>
        <translation>テスト失敗、取り扱いによる損傷の疑い</translation>
    </message>
    <message>
        <source>Test ended with Unknown Status</source>
        <translation>不明な状態でテスト終了</translation>
    </message>
    <message>
        <source>No Status from the Drive</source>
        <translation>ディスクから状態の応答なし</translation>
    </message>
    <message>
        <source>Test Aborted by User</source>
        <translation>テストはユーザーにより中止</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> 分</translation>
    </message>
    <message>
        <source>Healthy</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Not Healthy</source>
        <translation>異常</translation>
    </message>
    <message>
        <source>% Free</source>
        <translation>% 空き</translation>
    </message>
    <message>
        <source> Free of </source>
        <translation> 空き / </translation>
    </message>
    <message>
        <source> Available</source>
        <translation> 利用可能</translation>
    </message>
    <message>
        <source>The self-test has ended.</source>
        <translation>セルフテストが終了しました。</translation>
    </message>
    <message>
        <source>%1 volumes: %2</source>
        <translation>%1 個のボリューム: %2</translation>
    </message>
    <message>
        <source>From %1 to %2: lowest value %3, highest %4, latest %5</source>
        <translation>%1～%2: 最小値 %3、最大値 %4、最新値 %5</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>普通</translation>
    </message>
</context>
<context>
    <name>Monitor</name>
    <message>
        <source>Back up this disk now.</source>
        <translation>このディスクを今すぐバックアップしてください。</translation>
    </message>
    <message>
        <source>temperature %1, limit %2</source>
        <translation>温度 %1、制限値 %2</translation>
    </message>
    <message>
        <source>See to its cooling.</source>
        <translation>冷却を確認してください。</translation>
    </message>
    <message>
        <source>temperature %1, shutdown limit %2</source>
        <translation>温度 %1、シャットダウン制限値 %2</translation>
    </message>
    <message>
        <source>It is advisable to shut down the system now.</source>
        <translation>今すぐシステムをシャットダウンすることをお勧めします。</translation>
    </message>
    <message>
        <source>the drive reports that it is failing: %3</source>
        <translation>ドライブが故障を報告しています: %3</translation>
    </message>
    <message>
        <source>the drive reports that it is failing</source>
        <translation>ドライブが故障を報告しています</translation>
    </message>
    <message>
        <source>critical warning: %3</source>
        <translation>重大な警告: %3</translation>
    </message>
    <message>
        <source>failing attributes: %3</source>
        <translation>不合格の属性: %3</translation>
    </message>
    <message>
        <source>reallocated sectors: %1 (before: %2)</source>
        <translation>代替処理済みセクタ: %1 (以前: %2)</translation>
    </message>
    <message>
        <source>reallocated sectors: %1</source>
        <translation>代替処理済みセクタ: %1</translation>
    </message>
    <message>
        <source>pending sectors: %1 (before: %2)</source>
        <translation>代替処理保留中セクタ: %1 (以前: %2)</translation>
    </message>
    <message>
        <source>pending sectors: %1</source>
        <translation>代替処理保留中セクタ: %1</translation>
    </message>
    <message>
        <source>uncorrectable errors: %1 (before: %2)</source>
        <translation>訂正不可エラー: %1 (以前: %2)</translation>
    </message>
    <message>
        <source>uncorrectable errors: %1</source>
        <translation>訂正不可エラー: %1</translation>
    </message>
    <message>
        <source>media errors: %1 (before: %2)</source>
        <translation>メディアエラー: %1 (以前: %2)</translation>
    </message>
    <message>
        <source>media errors: %1</source>
        <translation>メディアエラー: %1</translation>
    </message>
    <message>
        <source>spare %1 %, threshold %2 %</source>
        <translation>予備領域 %1 %、しきい値 %2 %</translation>
    </message>
    <message>
        <source>wear %1 %</source>
        <translation>消耗 %1 %</translation>
    </message>
    <message>
        <source>Plan to replace this disk, and keep a backup.</source>
        <translation>このディスクの交換を計画し、バックアップを保持してください。</translation>
    </message>
    <message>
        <source>the self-test failed: %3</source>
        <translation>セルフテストに失敗しました: %3</translation>
    </message>
    <message>
        <source>the disk does not answer</source>
        <translation>ディスクが応答しません</translation>
    </message>
    <message>
        <source>Check its cable. Back it up as soon as it answers.</source>
        <translation>ケーブルを確認してください。応答したらすぐにバックアップしてください。</translation>
    </message>
    <message>
        <source>the disk is missing</source>
        <translation>ディスクが見つかりません</translation>
    </message>
    <message>
        <source>Check its cable. If it comes back, back it up.</source>
        <translation>ケーブルを確認してください。再び認識されたらバックアップしてください。</translation>
    </message>
    <message>
        <source>the disk is back</source>
        <translation>ディスクが再び認識されました</translation>
    </message>
    <message>
        <source>the log cannot be written: %3</source>
        <translation>ログを書き込めません: %3</translation>
    </message>
    <message>
        <source>Choose another file for it in Settings.</source>
        <translation>設定で別のファイルを選んでください。</translation>
    </message>
    <message>
        <source>the spare is used up</source>
        <translation>予備領域を使い切りました</translation>
    </message>
    <message>
        <source>too hot or too cold</source>
        <translation>温度が高すぎるか低すぎます</translation>
    </message>
    <message>
        <source>less reliable after errors of the medium</source>
        <translation>メディアのエラーで信頼性が低下しています</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>the backup of its memory has failed</source>
        <translation>メモリのバックアップ機能が故障しました</translation>
    </message>
    <message>
        <source>the persistent memory is read-only</source>
        <translation>永続メモリが読み取り専用です</translation>
    </message>
</context>
<context>
    <name>QCheckUpdate</name>
    <message>
        <source>No update available.</source>
        <translation>利用可能な更新はありません。</translation>
    </message>
</context>
<context>
    <name>QDownloadApp</name>
    <message>
        <source>Downloading under progress...</source>
        <translation>ダウンロード中...</translation>
    </message>
    <message>
        <source>Time Elapsed: </source>
        <translation>経過時間: </translation>
    </message>
    <message>
        <source> sec </source>
        <translation> 秒 </translation>
    </message>
    <message>
        <source> MB copied) </source>
        <translation> MB コピー済み) </translation>
    </message>
    <message>
        <source> MB of  </source>
        <translation> MB /  </translation>
    </message>
    <message>
        <source>Transfer Rate: </source>
        <translation>転送速度: </translation>
    </message>
    <message>
        <source> KB/sec </source>
        <translation> KB/秒 </translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>ソフトウェアの更新</translation>
    </message>
    <message>
        <source>Update failed 

Update failed due to partial download.</source>
        <translation>更新に失敗しました 

ダウンロードが不完全なため、更新に失敗しました。</translation>
    </message>
    <message>
        <source>The update could not be verified and was not started.</source>
        <translation>更新を検証できなかったため、開始しませんでした。</translation>
    </message>
</context>
<context>
    <name>QGridView</name>
    <message>
        <source> to </source>
        <translation> ～ </translation>
    </message>
    <message>
        <source>Start Sector of current block: </source>
        <translation>現在のブロックの開始セクタ: </translation>
    </message>
    <message>
        <source>End Sector of current block: </source>
        <translation>現在のブロックの終了セクタ: </translation>
    </message>
    <message>
        <source>Current Block Size : </source>
        <translation>現在のブロックのサイズ: </translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>%1 cells, %2 with unreadable sectors</source>
        <translation>%1 個のセル、うち %2 個に読み取れないセクタがあります</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Velmora Halvane already running. Cannot start more than one instance of the application.</source>
        <translation>Velmora Halvane は既に実行中です。アプリケーションを複数起動することはできません。</translation>
    </message>
    <message>
        <source>Velmora Halvane cannot start: there is no folder for its temporary files that other users cannot change.</source>
        <translation>Velmora Halvane を起動できません。ほかのユーザーが変更できない一時ファイル用のフォルダーがありません。</translation>
    </message>
</context>
<context>
    <name>QRoundProgressBar</name>
    <message>
        <source>Complete</source>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>QShowUpdate</name>
    <message>
        <source>A new major release </source>
        <translation>新しいメジャーリリース </translation>
    </message>
    <message>
        <source>A new minor update </source>
        <translation>新しいマイナーアップデート </translation>
    </message>
    <message>
        <source> is available. Click Update to proceed further.</source>
        <translation> が利用できます。続行するには「更新」をクリックしてください。</translation>
    </message>
    <message>
        <source>Visit Update Page</source>
        <translation>更新ページを開く</translation>
    </message>
</context>
<context>
    <name>QWaitClass</name>
    <message>
        <source>Initializing Velmora Halvane...</source>
        <translation>Velmora Halvane を初期化しています...</translation>
    </message>
</context>
<context>
    <name>SaveListButton</name>
    <message>
        <source>Save List</source>
        <translation>リストを保存</translation>
    </message>
    <message>
        <source>The list could not be saved.</source>
        <translation>リストを保存できませんでした。</translation>
    </message>
    <message>
        <source>Saves the bad sectors as a text or as a map file of GNU ddrescue</source>
        <translation>不良セクタをテキストまたは GNU ddrescue のマップファイルとして保存します</translation>
    </message>
</context>
<context>
    <name>ScanDisk</name>
    <message>
        <source> hours</source>
        <translation> 時間</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> 分</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>残り時間</translation>
    </message>
    <message>
        <source>Time Elapsed</source>
        <translation>経過時間</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Disk Scan</source>
        <translation>ディスクスキャン</translation>
    </message>
    <message>
        <source>Disk scan aborted.</source>
        <translation>ディスクスキャンを中止しました。</translation>
    </message>
    <message>
        <source>Disk scan aborted by user.</source>
        <translation>ディスクスキャンはユーザーによって中止されました。</translation>
    </message>
    <message>
        <source>Scan Completed</source>
        <translation>スキャン完了</translation>
    </message>
    <message>
        <source>Scan Completed.</source>
        <translation>スキャンが完了しました。</translation>
    </message>
    <message>
        <source>Scan Failed</source>
        <translation>スキャン失敗</translation>
    </message>
    <message>
        <source>Scan Failed.</source>
        <translation>スキャンに失敗しました。</translation>
    </message>
    <message>
        <source>The disk is no longer connected.</source>
        <translation>ディスクは接続されていません。</translation>
    </message>
    <message>
        <source>Sector %1 (LBA), byte offset %2</source>
        <translation>セクタ %1 (LBA)、バイトオフセット %2</translation>
    </message>
    <message>
        <source>Sectors %1 to %2 (LBA), byte offset %3</source>
        <translation>セクタ %1～%2 (LBA)、バイトオフセット %3</translation>
    </message>
    <message>
        <source>Disk:</source>
        <translation>ディスク:</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>シリアル番号:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>日時:</translation>
    </message>
    <message>
        <source>Scanned: the first %1 of %2 sectors</source>
        <translation>スキャン済み: 先頭から %1 / %2 セクタ</translation>
    </message>
    <message>
        <source>Result:</source>
        <translation>結果:</translation>
    </message>
    <message>
        <source>Bad sectors: %1</source>
        <translation>不良セクタ: %1</translation>
    </message>
</context>
<context>
    <name>ScanSwitchDialog</name>
    <message>
        <source>Scan Disk</source>
        <translation>ディスクスキャン</translation>
    </message>
    <message>
        <source>Scan results will be lost if you move away from this screen. </source>
        <translation>この画面を離れると、スキャン結果は失われます。 </translation>
    </message>
    <message>
        <source>Do you want to move away from this screen?</source>
        <translation>この画面を離れますか?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
</context>
<context>
    <name>SelfTestNotSupportedDialog</name>
    <message>
        <source>Drive Test</source>
        <translation>ドライブテスト</translation>
    </message>
    <message>
        <source>Self-test not supported.</source>
        <translation>セルフテストに対応していません。</translation>
    </message>
    <message>
        <source>Selected disk doesn&apos;t support self test.</source>
        <translation>選択したディスクはセルフテストに対応していません。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>SelfTestPanelForm</name>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Polling Time</source>
        <translation>予想時間</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>残り時間</translation>
    </message>
    <message>
        <source>Time Elapsed</source>
        <translation>経過時間</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Save log file</source>
        <translation>ログファイルの保存</translation>
    </message>
    <message>
        <source>Your Software has all latest updates installed.</source>
        <translation>お使いのソフトウェアは最新の状態です。</translation>
    </message>
</context>
<context>
    <name>ShowUpdateAvail</name>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>SmallMsg</name>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>SmartShutdownDialog</name>
    <message>
        <source>Shutdown Warning</source>
        <translation>シャットダウンの警告</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Hard Disk&apos;s temperature has reached the shutdown value.</source>
        <translation>ハードディスクの温度がシャットダウン温度に達しました。</translation>
    </message>
    <message>
        <source>It is advisable to shutdown the system immediately.</source>
        <translation>直ちにシステムをシャットダウンすることをお勧めします。</translation>
    </message>
    <message>
        <source>Shutdown</source>
        <translation>シャットダウン</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>SmartStatus</name>
    <message>
        <source>     ID</source>
        <translation>     ID</translation>
    </message>
    <message>
        <source>Attribute Name</source>
        <translation>属性名</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>最悪値</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>しきい値</translation>
    </message>
    <message>
        <source>Raw Value</source>
        <translation>生の値</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>不合格</translation>
    </message>
    <message>
        <source>Better</source>
        <translation>改善</translation>
    </message>
    <message>
        <source>Overall Status</source>
        <translation>総合状態</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>値</translation>
    </message>
    <message>
        <source>AttName</source>
        <translation>AttName</translation>
    </message>
    <message>
        <source>PASSED</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>グラフ</translation>
    </message>
    <message>
        <source>FAIELD</source>
        <translation>不合格</translation>
    </message>
    <message>
        <source>ATA Disk</source>
        <translation>ATA ディスク</translation>
    </message>
</context>
<context>
    <name>SmartWarningDialog</name>
    <message>
        <source>SMART Warning</source>
        <translation>SMART の警告</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Hard Disk&apos;s temperature exceed the threshold value.</source>
        <translation>ハードディスクの温度がしきい値を超えています。</translation>
    </message>
    <message>
        <source>Your hard disk&apos;s temperature has exceeded threshold value. This may damage hard disk. It is advisable to shutdown the system immediately.</source>
        <translation>ハードディスクの温度がしきい値を超えました。ハードディスクが損傷するおそれがあります。直ちにシステムをシャットダウンすることをお勧めします。</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>今後表示しない</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Refresh now</source>
        <translation>今すぐ更新</translation>
    </message>
    <message>
        <source>Pause alarms for an hour</source>
        <translation>警告を 1 時間停止</translation>
    </message>
    <message>
        <source>Show lowest health</source>
        <translation>最も低い健康状態を表示</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>VolumeFrame</name>
    <message>
        <source>Partition</source>
        <translation>パーティション</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>領域</translation>
    </message>
</context>
<context>
    <name>m_pCloneDiskwgt</name>
    <message>
        <source>Disk Details</source>
        <translation>ディスクの詳細</translation>
    </message>
    <message>
        <source>Source Disk</source>
        <translation>コピー元ディスク</translation>
    </message>
    <message>
        <source>Target Disk</source>
        <translation>コピー先ディスク</translation>
    </message>
    <message>
        <source>Remaining Time</source>
        <translation>残り時間</translation>
    </message>
</context>
<context>
    <name>m_pCloseWgt</name>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Are you sure you want to exit?</source>
        <translation>終了してもよろしいですか?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
</context>
<context>
    <name>m_pDiskPartitionWgt</name>
    <message>
        <source>Disk Partition</source>
        <translation>ディスクパーティション</translation>
    </message>
    <message>
        <source>Partition Details</source>
        <translation>パーティションの詳細</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>インターフェース</translation>
    </message>
</context>
<context>
    <name>m_pDiskStatus</name>
    <message>
        <source>Disk Details</source>
        <translation>ディスクの詳細</translation>
    </message>
    <message>
        <source>Disk Number</source>
        <translation>ディスク番号</translation>
    </message>
    <message>
        <source>Model Number</source>
        <translation>モデル番号</translation>
    </message>
    <message>
        <source>Firmware Revision</source>
        <translation>ファームウェア</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>インターフェース</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>総セクタ数</translation>
    </message>
    <message>
        <source>Hard Disk Life</source>
        <translation>ディスクの寿命</translation>
    </message>
    <message>
        <source>Power-on Time</source>
        <translation>通電時間</translation>
    </message>
    <message>
        <source>Start/Stop Count</source>
        <translation>起動/停止回数</translation>
    </message>
    <message>
        <source>Drive&apos;s verdict</source>
        <translation>ドライブの判定</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Performance</source>
        <translation>性能</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>健康状態</translation>
    </message>
</context>
<context>
    <name>m_pMainWindow</name>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>SMART Status</source>
        <translation>SMART の状態</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>クローン</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>レポート保存</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>画面キャプチャ</translation>
    </message>
    <message>
        <source>View Velmora Halvane help document</source>
        <translation>Velmora Halvane のヘルプを表示します</translation>
    </message>
    <message>
        <source>More Tools</source>
        <translation>その他のツール</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Recover Data</source>
        <translation>データを復元</translation>
    </message>
    <message>
        <source>Repair Video</source>
        <translation>動画を修復</translation>
    </message>
    <message>
        <source>Repair Photo</source>
        <translation>写真を修復</translation>
    </message>
</context>
<context>
    <name>m_pScanDiskwgt</name>
    <message>
        <source>Scan Disk</source>
        <translation>ディスクスキャン</translation>
    </message>
    <message>
        <source>Disk Size</source>
        <translation>ディスクサイズ</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>総セクタ数</translation>
    </message>
    <message>
        <source>Block Size</source>
        <translation>ブロックサイズ</translation>
    </message>
    <message>
        <source>  Processed</source>
        <translation>  処理済み</translation>
    </message>
    <message>
        <source>  Bad Sectors</source>
        <translation>  不良セクタ</translation>
    </message>
    <message>
        <source>  Processing</source>
        <translation>  処理中</translation>
    </message>
    <message>
        <source>Short Self-test</source>
        <translation>ショートセルフテスト</translation>
    </message>
    <message>
        <source>Extended Self-test</source>
        <translation>拡張セルフテスト</translation>
    </message>
    <message>
        <source>Perform a surface scan on the selected disk to identify if the disk has bad sectors.</source>
        <translation>選択したディスクの表面をスキャンし、不良セクタがあるかどうかを調べます。</translation>
    </message>
    <message>
        <source>Run this test to check the electrical and mechanical performance of a device along with the read/write operations on a portion of the disk. This test may take few minutes to complete.</source>
        <translation>デバイスの電気的・機械的な性能と、ディスクの一部での読み書き動作を検査します。このテストには数分かかることがあります。</translation>
    </message>
    <message>
        <source>This test is same as a short self-test with a complete disk surface examination. This test may take up to few hours to complete.</source>
        <translation>ショートセルフテストに加えて、ディスク表面全体を検査します。このテストには数時間かかることがあります。</translation>
    </message>
</context>
<context>
    <name>m_pSettingswgt</name>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>  Settings</source>
        <translation>  設定</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Show status in tray</source>
        <translation>トレイに状態を表示</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英語</translation>
    </message>
    <message>
        <source>German</source>
        <translation>ドイツ語</translation>
    </message>
    <message>
        <source>French</source>
        <translation>フランス語</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>イタリア語</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>スペイン語</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>オランダ語</translation>
    </message>
    <message>
        <source>Portuguese (Brazil)</source>
        <translation>ポルトガル語 (ブラジル)</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>ヒンディー語</translation>
    </message>
    <message>
        <source>LOGS</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Save log file</source>
        <translation>ログファイルの保存</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Max log size (KB)</source>
        <translation>最大ログサイズ (KB)</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Show Temperature in</source>
        <translation>温度の表示単位</translation>
    </message>
    <message>
        <source>Celsius</source>
        <translation>摂氏</translation>
    </message>
    <message>
        <source>Fahrenheit</source>
        <translation>華氏</translation>
    </message>
    <message>
        <source>Enable Temperature Alarm</source>
        <translation>温度アラームを有効にする</translation>
    </message>
    <message>
        <source>Warning Temperature</source>
        <translation>警告温度</translation>
    </message>
    <message>
        <source>°C</source>
        <translation>°C</translation>
    </message>
    <message>
        <source>°F</source>
        <translation>°F</translation>
    </message>
    <message>
        <source>Shutdown Temperature</source>
        <translation>シャットダウン温度</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>更新の確認</translation>
    </message>
    <message>
        <source>View Velmora Halvane help document</source>
        <translation>Velmora Halvane のヘルプを表示します</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>m_pSmartWgt</name>
    <message>
        <source>SMART Status : </source>
        <translation>SMART の状態: </translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>インターフェース</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>レポート保存</translation>
    </message>
    <message>
        <source>Smart Status</source>
        <translation>SMART の状態</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
</context>
</TS>
