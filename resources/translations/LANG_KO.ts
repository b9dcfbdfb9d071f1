<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Velmora Halvane</source>
        <translation>Velmora Halvane 정보</translation>
    </message>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>License Agreement</source>
        <translation>사용권 계약</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>AboutDlg</name>
    <message>
        <source>Version </source>
        <translation>버전 </translation>
    </message>
</context>
<context>
    <name>AccessNotice</name>
    <message>
        <source>No disk can be opened</source>
        <translation>디스크를 열 수 없습니다</translation>
    </message>
    <message>
        <source>Velmora Halvane needs the rights of an administrator to open disks. Without them nothing can be said of their health.</source>
        <translation>Velmora Halvane이 디스크를 열려면 관리자 권한이 필요합니다. 권한이 없으면 디스크의 건강 상태를 알 수 없습니다.</translation>
    </message>
    <message>
        <source>Close the program, right-click its icon and choose &quot;Run as administrator&quot;.</source>
        <translation>프로그램을 닫고 아이콘을 마우스 오른쪽 버튼으로 클릭한 다음 &quot;관리자 권한으로 실행&quot;을 선택하세요.</translation>
    </message>
    <message>
        <source>Close the program and start it as root. This command does it in a terminal:</source>
        <translation>프로그램을 닫고 root로 시작하세요. 터미널에서는 다음 명령을 사용합니다:</translation>
    </message>
</context>
<context>
    <name>AttributeCatalogue</name>
    <message>
        <source>Raw Read Error Rate</source>
        <translation>읽기 오류율</translation>
    </message>
    <message>
        <source>Spin Up Time</source>
        <translation>스핀업 시간</translation>
    </message>
    <message>
        <source>Start Stop Count</source>
        <translation>시작/정지 횟수</translation>
    </message>
    <message>
        <source>Reallocated Sector Count</source>
        <translation>재할당된 섹터 수</translation>
    </message>
    <message>
        <source>Seek Error Rate</source>
        <translation>탐색 오류율</translation>
    </message>
    <message>
        <source>Power On Hours</source>
        <translation>전원 켜짐 시간</translation>
    </message>
    <message>
        <source>Spin Retry Count</source>
        <translation>스핀 재시도 횟수</translation>
    </message>
    <message>
        <source>Calibration Retry Count</source>
        <translation>보정 재시도 횟수</translation>
    </message>
    <message>
        <source>Power Cycle Count</source>
        <translation>전원 켜짐 횟수</translation>
    </message>
    <message>
        <source>Power-Off Retract Count</source>
        <translation>전원 차단 시 헤드 복귀 횟수</translation>
    </message>
    <message>
        <source>Load Cycle Count</source>
        <translation>헤드 로드 횟수</translation>
    </message>
    <message>
        <source>Temperature Celsius</source>
        <translation>온도(섭씨)</translation>
    </message>
    <message>
        <source>Reallocated Event Count</source>
        <translation>재할당 이벤트 횟수</translation>
    </message>
    <message>
        <source>Current Pending Sector Count</source>
        <translation>보류 중인 섹터 수</translation>
    </message>
    <message>
        <source>Offline Uncorrectable</source>
        <translation>오프라인 수정 불가 섹터</translation>
    </message>
    <message>
        <source>UDMA CRC Error Count</source>
        <translation>UDMA CRC 오류 수</translation>
    </message>
    <message>
        <source>Multi Zone Error Rate</source>
        <translation>다중 영역 오류율</translation>
    </message>
    <message>
        <source>Available Reserved Space</source>
        <translation>사용 가능한 예비 공간</translation>
    </message>
    <message>
        <source>SSD Program Fail Count</source>
        <translation>SSD 프로그램 실패 횟수</translation>
    </message>
    <message>
        <source>SSD Erase Fail Count</source>
        <translation>SSD 지우기 실패 횟수</translation>
    </message>
    <message>
        <source>SSD Wear Leveling Count</source>
        <translation>SSD 웨어 레벨링 횟수</translation>
    </message>
    <message>
        <source>Unexpected power loss count</source>
        <translation>예기치 않은 전원 손실 횟수</translation>
    </message>
    <message>
        <source>Throughput Performance</source>
        <translation>처리 성능</translation>
    </message>
    <message>
        <source>Read Channel Margin</source>
        <translation>읽기 채널 여유</translation>
    </message>
    <message>
        <source>Seek Time Performance</source>
        <translation>탐색 시간 성능</translation>
    </message>
    <message>
        <source>Soft Read Error Rate</source>
        <translation>소프트 읽기 오류율</translation>
    </message>
    <message>
        <source>Runtime Bad Block</source>
        <translation>사용 중 불량 블록</translation>
    </message>
    <message>
        <source>End-to-End Error </source>
        <translation>종단 간 오류 </translation>
    </message>
    <message>
        <source>Reported Uncorrect</source>
        <translation>보고된 수정 불가 오류</translation>
    </message>
    <message>
        <source>Command Timeout</source>
        <translation>명령 시간 초과</translation>
    </message>
    <message>
        <source>High Fly Writes</source>
        <translation>헤드 부상 초과 쓰기</translation>
    </message>
    <message>
        <source>Airflow Temperature Cel</source>
        <translation>공기 흐름 온도</translation>
    </message>
    <message>
        <source>G-Sense Error Rate</source>
        <translation>충격 오류율</translation>
    </message>
    <message>
        <source>Hardware ECC Recovered</source>
        <translation>하드웨어 ECC 복구</translation>
    </message>
    <message>
        <source>Multi Zone Error Rate </source>
        <translation>다중 영역 오류율 </translation>
    </message>
    <message>
        <source>Write Error Rate</source>
        <translation>쓰기 오류율</translation>
    </message>
    <message>
        <source>Head Flying Hours</source>
        <translation>헤드 비행 시간</translation>
    </message>
    <message>
        <source>Total LBAs Written</source>
        <translation>총 쓴 LBA 수</translation>
    </message>
    <message>
        <source>Total LBAs Read</source>
        <translation>총 읽은 LBA 수</translation>
    </message>
    <message>
        <source>Free Fall Sensor</source>
        <translation>자유 낙하 센서</translation>
    </message>
    <message>
        <source>Critical Warning</source>
        <translation>심각한 경고</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>온도</translation>
    </message>
    <message>
        <source>Available Spare</source>
        <translation>사용 가능한 예비 공간</translation>
    </message>
    <message>
        <source>Available Spare Threshold</source>
        <translation>예비 공간 임계값</translation>
    </message>
    <message>
        <source>Percentage Used</source>
        <translation>수명 사용률</translation>
    </message>
    <message>
        <source>Data Units Read</source>
        <translation>읽은 데이터 단위</translation>
    </message>
    <message>
        <source>Data Units Written</source>
        <translation>쓴 데이터 단위</translation>
    </message>
    <message>
        <source>Host Read Commands</source>
        <translation>호스트 읽기 명령</translation>
    </message>
    <message>
        <source>Host Write Commands</source>
        <translation>호스트 쓰기 명령</translation>
    </message>
    <message>
        <source>Controller Busy Time</source>
        <translation>컨트롤러 작업 시간</translation>
    </message>
    <message>
        <source>Power Cyles</source>
        <translation>전원 켜짐 횟수</translation>
    </message>
    <message>
        <source>Unsafe Shutdowns</source>
        <translation>비정상 종료 횟수</translation>
    </message>
    <message>
        <source>Media and Data Integrity Errors</source>
        <translation>미디어 및 데이터 무결성 오류</translation>
    </message>
    <message>
        <source>Error Information Log Entries</source>
        <translation>오류 로그 항목 수</translation>
    </message>
</context>
<context>
    <name>AttributeRows</name>
    <message>
        <source>FAILED</source>
        <translation>비정상</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>정상</translation>
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
        <translation>업데이트 확인 중...</translation>
    </message>
</context>
<context>
    <name>CloneDisk</name>
    <message>
        <source>Not Available</source>
        <translation>사용할 수 없음</translation>
    </message>
    <message>
        <source>Disk Number 	: </source>
        <translation>디스크 번호 	: </translation>
    </message>
    <message>
        <source>Model Number	: </source>
        <translation>모델 번호	: </translation>
    </message>
    <message>
        <source>Serial: </source>
        <translation>일련 번호: </translation>
    </message>
    <message>
        <source>Firmware Revision : </source>
        <translation>펌웨어 버전 : </translation>
    </message>
    <message>
        <source>Interface Type	   : </source>
        <translation>인터페이스 유형	   : </translation>
    </message>
    <message>
        <source>Capacity	: </source>
        <translation>용량	: </translation>
    </message>
    <message>
        <source>Total Sector	   : </source>
        <translation>총 섹터 수	   : </translation>
    </message>
    <message>
        <source>Model Number : </source>
        <translation>모델 번호 : </translation>
    </message>
    <message>
        <source>Capacity           : </source>
        <translation>용량           : </translation>
    </message>
    <message>
        <source>ATA Disk</source>
        <translation>ATA 디스크</translation>
    </message>
    <message>
        <source> hours</source>
        <translation> 시간</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> 분</translation>
    </message>
    <message>
        <source>Source and destination disks are same.</source>
        <translation>원본 디스크와 대상 디스크가 같습니다.</translation>
    </message>
    <message>
        <source>Destination disk size is smaller than source disk.</source>
        <translation>대상 디스크가 원본 디스크보다 작습니다.</translation>
    </message>
    <message>
        <source>Clone Disk</source>
        <translation>디스크 복제</translation>
    </message>
    <message>
        <source>Select different destination disk.</source>
        <translation>다른 대상 디스크를 선택하십시오.</translation>
    </message>
    <message>
        <source>Cloning Failed</source>
        <translation>복제 실패</translation>
    </message>
    <message>
        <source>Unable to write on destination disk.</source>
        <translation>대상 디스크에 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>Select other destination disk.</source>
        <translation>다른 대상 디스크를 선택하십시오.</translation>
    </message>
    <message>
        <source>Abort Clone</source>
        <translation>복제 중단</translation>
    </message>
    <message>
        <source>Cloning Aborted.</source>
        <translation>복제가 중단되었습니다.</translation>
    </message>
    <message>
        <source>Disk Cloning complete.</source>
        <translation>디스크 복제가 완료되었습니다.</translation>
    </message>
    <message>
        <source>Disk cloning process completed successfully.</source>
        <translation>디스크 복제가 성공적으로 완료되었습니다.</translation>
    </message>
    <message>
        <source>Cloning aborted.</source>
        <translation>복제가 중단되었습니다.</translation>
    </message>
    <message>
        <source>Cloning process aborted by the user.</source>
        <translation>사용자가 복제를 중단했습니다.</translation>
    </message>
    <message>
        <source>Select Destination</source>
        <translation>대상 선택</translation>
    </message>
    <message>
        <source>The disks are not there any more.</source>
        <translation>디스크가 더 이상 없습니다.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>메모리가 부족합니다.</translation>
    </message>
    <message>
        <source>The source disk cannot be opened.</source>
        <translation>원본 디스크를 열 수 없습니다.</translation>
    </message>
    <message>
        <source>The destination disk cannot be opened.</source>
        <translation>대상 디스크를 열 수 없습니다.</translation>
    </message>
    <message>
        <source>The source disk is not the one that was chosen.</source>
        <translation>원본 디스크가 선택한 디스크가 아닙니다.</translation>
    </message>
    <message>
        <source>The destination disk is not the one that was chosen.</source>
        <translation>대상 디스크가 선택한 디스크가 아닙니다.</translation>
    </message>
    <message>
        <source>The source disk has no sectors.</source>
        <translation>원본 디스크에 섹터가 없습니다.</translation>
    </message>
    <message>
        <source>The system runs from the destination disk.</source>
        <translation>시스템이 대상 디스크에서 실행 중입니다.</translation>
    </message>
    <message>
        <source>A volume of the destination disk is in use.</source>
        <translation>대상 디스크의 볼륨이 사용 중입니다.</translation>
    </message>
    <message>
        <source>The destination disk is in use.</source>
        <translation>대상 디스크가 사용 중입니다.</translation>
    </message>
    <message>
        <source>It cannot be found out whether the destination disk is in use.</source>
        <translation>대상 디스크가 사용 중인지 확인할 수 없습니다.</translation>
    </message>
    <message>
        <source>The destination disk cannot be written. It may be in use.</source>
        <translation>대상 디스크에 쓸 수 없습니다. 사용 중일 수 있습니다.</translation>
    </message>
    <message>
        <source>The source disk does not answer any more.</source>
        <translation>원본 디스크가 더 이상 응답하지 않습니다.</translation>
    </message>
    <message>
        <source>The destination disk does not answer any more.</source>
        <translation>대상 디스크가 더 이상 응답하지 않습니다.</translation>
    </message>
    <message>
        <source>%1 sectors could not be read and were filled with zeros. %2 sectors could not be written.</source>
        <translation>섹터 %1개를 읽을 수 없어 0으로 채웠습니다. 섹터 %2개를 쓸 수 없었습니다.</translation>
    </message>
    <message>
        <source>The destination disk did not confirm that all data is stored.</source>
        <translation>대상 디스크가 모든 데이터가 저장되었음을 확인하지 않았습니다.</translation>
    </message>
    <message>
        <source>Disk Cloning complete with errors.</source>
        <translation>디스크 복제가 완료되었지만 오류가 있습니다.</translation>
    </message>
    <message>
        <source>Nothing was written on any disk.</source>
        <translation>어느 디스크에도 쓰지 않았습니다.</translation>
    </message>
    <message>
        <source>The destination disk holds no complete copy.</source>
        <translation>대상 디스크에 완전한 복사본이 없습니다.</translation>
    </message>
    <message>
        <source>Save List</source>
        <translation>목록 저장</translation>
    </message>
    <message>
        <source>The list could not be saved.</source>
        <translation>목록을 저장할 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 % of the disk copied</source>
        <translation>디스크의 %1 % 복사됨</translation>
    </message>
</context>
<context>
    <name>CloningWarningDialog</name>
    <message>
        <source>Clone Disk</source>
        <translation>디스크 복제</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>This action will create a clone of the source drive on the destination drive. Make sure that source and destination disk selection is correct since this operation is irreversible.</source>
        <translation>이 작업은 원본 드라이브의 복제본을 대상 드라이브에 만듭니다. 되돌릴 수 없는 작업이므로 원본 디스크와 대상 디스크를 올바르게 선택했는지 확인하십시오.</translation>
    </message>
    <message>
        <source>Existing data on the destination disk will be lost.</source>
        <translation>대상 디스크의 기존 데이터가 손실됩니다.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>Companion</name>
    <message>
        <source>%1 · health %2 %</source>
        <translation>%1 · 건강 상태 %2 %</translation>
    </message>
    <message>
        <source>Asleep</source>
        <translation>절전 상태</translation>
    </message>
    <message>
        <source>Asleep · last %1 at %2</source>
        <translation>절전 상태 · 마지막 값 %1(%2)</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>고온</translation>
    </message>
    <message>
        <source>Warm since %1</source>
        <translation>%1부터 따뜻함</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>따뜻함</translation>
    </message>
    <message>
        <source>Unknown disk</source>
        <translation>알 수 없는 디스크</translation>
    </message>
    <message>
        <source>Disk %1</source>
        <translation>디스크 %1</translation>
    </message>
    <message>
        <source>Missing: check its cable</source>
        <translation>없음: 케이블을 확인하세요</translation>
    </message>
    <message>
        <source>Failing: back up this disk now</source>
        <translation>고장 임박: 지금 백업하세요</translation>
    </message>
    <message>
        <source>Does not answer</source>
        <translation>응답 없음</translation>
    </message>
    <message>
        <source>Tells nothing of its health</source>
        <translation>건강 상태 정보를 제공하지 않음</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>정상</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>주의 필요</translation>
    </message>
    <message>
        <source>No disk is watched.</source>
        <translation>감시 중인 디스크가 없습니다.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>외 %1개</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>방금</translation>
    </message>
    <message>
        <source>1 minute ago</source>
        <translation>1분 전</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1분 전</translation>
    </message>
</context>
<context>
    <name>ConfarmetionDialog</name>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
</context>
<context>
    <name>DestinitionWarningDailog</name>
    <message>
        <source>Clone Disk</source>
        <translation>디스크 복제</translation>
    </message>
    <message>
        <source>Select target disk.</source>
        <translation>대상 디스크를 선택하십시오.</translation>
    </message>
    <message>
        <source>Select target disk to start cloning process.</source>
        <translation>복제를 시작하려면 대상 디스크를 선택하십시오.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>DiskPartition</name>
    <message>
        <source>ATA Disk</source>
        <translation>ATA 디스크</translation>
    </message>
</context>
<context>
    <name>DiskStatus</name>
    <message>
        <source>Not Supported</source>
        <translation>지원되지 않음</translation>
    </message>
    <message>
        <source>Failed: back up your data</source>
        <translation>실패: 데이터를 백업하세요</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>통과</translation>
    </message>
    <message>
        <source>Not told</source>
        <translation>알려 주지 않음</translation>
    </message>
</context>
<context>
    <name>DonutChartView</name>
    <message>
        <source>Disk </source>
        <translation>디스크 </translation>
    </message>
</context>
<context>
    <name>DownloadUpdate</name>
    <message>
        <source>Software Update</source>
        <translation>소프트웨어 업데이트</translation>
    </message>
    <message>
        <source>Downloading Files</source>
        <translation>파일 다운로드</translation>
    </message>
</context>
<context>
    <name>Flyout</name>
    <message>
        <source>No disk is watched.</source>
        <translation>감시 중인 디스크가 없습니다.</translation>
    </message>
    <message>
        <source>Alarms on again</source>
        <translation>알람 다시 켜기</translation>
    </message>
    <message>
        <source>Pause alarms</source>
        <translation>알람 일시 중지</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
</context>
<context>
    <name>FlyoutRow</name>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Limits…</source>
        <translation>한계값…</translation>
    </message>
    <message>
        <source>Mark as seen</source>
        <translation>확인함으로 표시</translation>
    </message>
</context>
<context>
    <name>InfoDialog</name>
    <message>
        <source>Information</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Save List</source>
        <translation>목록 저장</translation>
    </message>
</context>
<context>
    <name>LimitsDialog</name>
    <message>
        <source>Limits of this disk</source>
        <translation>이 디스크의 한계값</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Limits of its own</source>
        <translation>개별 한계값 사용</translation>
    </message>
    <message>
        <source>Warning Temperature</source>
        <translation>경고 온도</translation>
    </message>
    <message>
        <source>Shutdown Temperature</source>
        <translation>시스템 종료 온도</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Not Available</source>
        <translation>사용할 수 없음</translation>
    </message>
    <message>
        <source>Disk Drive </source>
        <translation>디스크 드라이브 </translation>
    </message>
    <message>
        <source>English</source>
        <translation>영어</translation>
    </message>
    <message>
        <source>German</source>
        <translation>독일어</translation>
    </message>
    <message>
        <source>French</source>
        <translation>프랑스어</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>이탈리아어</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>스페인어</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>일본어</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>중국어</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>한국어</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>네덜란드어</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>포르투갈어(브라질)</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>힌디어</translation>
    </message>
    <message>
        <source>   Disk Status</source>
        <translation>   디스크 상태</translation>
    </message>
    <message>
        <source>View the health status of your hard disk</source>
        <translation>하드 디스크의 건강 상태를 봅니다</translation>
    </message>
    <message>
        <source>   SMART Status</source>
        <translation>   SMART 상태</translation>
    </message>
    <message>
        <source>Detailed SMART status of the hard disk</source>
        <translation>하드 디스크의 자세한 SMART 상태</translation>
    </message>
    <message>
        <source>   Disk Partition</source>
        <translation>   파티션</translation>
    </message>
    <message>
        <source>View description of partitions in your hard disk</source>
        <translation>하드 디스크의 파티션 설명을 봅니다</translation>
    </message>
    <message>
        <source>   Scan Disk</source>
        <translation>   디스크 검사</translation>
    </message>
    <message>
        <source>Scan your hard disk for bad sectors</source>
        <translation>하드 디스크에서 불량 섹터를 검사합니다</translation>
    </message>
    <message>
        <source>   Clone Disk</source>
        <translation>   디스크 복제</translation>
    </message>
    <message>
        <source>Clone hard disk to avoid impending disk issues</source>
        <translation>하드 디스크를 복제하여 문제에 대비합니다</translation>
    </message>
    <message>
        <source>Extended Self-test</source>
        <translation>확장 자가 진단</translation>
    </message>
    <message>
        <source>Short Self-test</source>
        <translation>짧은 자가 진단</translation>
    </message>
    <message>
        <source>Aborted by User</source>
        <translation>사용자가 중단함</translation>
    </message>
    <message>
        <source>Successfully Completed</source>
        <translation>성공적으로 완료됨</translation>
    </message>
    <message>
        <source>Failed by Read Element</source>
        <translation>읽기 요소 실패</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>사용할 수 없음</translation>
    </message>
    <message>
        <source> days</source>
        <translation> 일</translation>
    </message>
    <message>
        <source> hours</source>
        <translation> 시간</translation>
    </message>
    <message>
        <source>More than 1000</source>
        <translation>1000 초과</translation>
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
        <translation>양호</translation>
    </message>
    <message>
        <source>Bad</source>
        <translation>불량</translation>
    </message>
    <message>
        <source>Not Supported</source>
        <translation>지원되지 않음</translation>
    </message>
    <message>
        <source>Supported</source>
        <translation>지원됨</translation>
    </message>
    <message>
        <source>NA</source>
        <translation>해당 없음</translation>
    </message>
    <message>
        <source>Disk Information:</source>
        <translation>디스크 정보:</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Details:</source>
        <translation>S.M.A.R.T. 세부 정보:</translation>
    </message>
    <message>
        <source>Model Number:</source>
        <translation>모델 번호:</translation>
    </message>
    <message>
        <source>Serial Number:</source>
        <translation>일련 번호:</translation>
    </message>
    <message>
        <source>Firmware Version:</source>
        <translation>펌웨어 버전:</translation>
    </message>
    <message>
        <source>Capacity:</source>
        <translation>용량:</translation>
    </message>
    <message>
        <source>Sector Size:</source>
        <translation>섹터 크기:</translation>
    </message>
    <message>
        <source>Local  Time:</source>
        <translation>현지 시간:</translation>
    </message>
    <message>
        <source>Maximum Data Transfer Size:</source>
        <translation>최대 데이터 전송 크기:</translation>
    </message>
    <message>
        <source>SMART Status:</source>
        <translation>SMART 상태:</translation>
    </message>
    <message>
        <source>Current Temperature:</source>
        <translation>현재 온도:</translation>
    </message>
    <message>
        <source>Performance:</source>
        <translation>성능:</translation>
    </message>
    <message>
        <source>Health:</source>
        <translation>건강 상태:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Attribute Name</source>
        <translation>속성 이름</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Self Test Details:</source>
        <translation>자가 진단 세부 정보:</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Details</source>
        <translation>S.M.A.R.T. 세부 정보</translation>
    </message>
    <message>
        <source>Make:</source>
        <translation>제조업체:</translation>
    </message>
    <message>
        <source>Rotation Rate:</source>
        <translation>회전 속도:</translation>
    </message>
    <message>
        <source>ATA Version:</source>
        <translation>ATA 버전:</translation>
    </message>
    <message>
        <source>SATA Version:</source>
        <translation>SATA 버전:</translation>
    </message>
    <message>
        <source>Short Self-test:</source>
        <translation>짧은 자가 진단:</translation>
    </message>
    <message>
        <source>Estimated Completion Time:</source>
        <translation>예상 완료 시간:</translation>
    </message>
    <message>
        <source>Extended Self-test:</source>
        <translation>확장 자가 진단:</translation>
    </message>
    <message>
        <source>Last Run Self-test:</source>
        <translation>마지막으로 실행한 자가 진단:</translation>
    </message>
    <message>
        <source>Last Self-Test Result:</source>
        <translation>마지막 자가 진단 결과:</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>최저값</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>임계값</translation>
    </message>
    <message>
        <source>Raw Value</source>
        <translation>원시 값</translation>
    </message>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Report</source>
        <translation>S.M.A.R.T. 보고서</translation>
    </message>
    <message>
        <source>The information contained in this report has been generated by the Velmora Halvane profiling process.</source>
        <translation>이 보고서의 정보는 Velmora Halvane의 분석 과정에서 생성되었습니다.</translation>
    </message>
    <message>
        <source>Velmora Halvane is a product of Korvane.</source>
        <translation>Velmora Halvane은 Korvane의 제품입니다.</translation>
    </message>
    <message>
        <source>Velmora Halvane is a product of Velmora.</source>
        <translation>Velmora Halvane은 Velmora의 제품입니다.</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>정상</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>통과</translation>
    </message>
    <message>
        <source>Source disk:     </source>
        <translation>원본 디스크:     </translation>
    </message>
    <message>
        <source>Destination disk:    </source>
        <translation>대상 디스크:    </translation>
    </message>
    <message>
        <source>Clone Disk</source>
        <translation>디스크 복제</translation>
    </message>
    <message>
        <source>Clone Running.</source>
        <translation>복제 중입니다.</translation>
    </message>
    <message>
        <source>Cloning process running.</source>
        <translation>복제 작업이 진행 중입니다.</translation>
    </message>
    <message>
        <source>Please halt the clone process to exit.</source>
        <translation>종료하려면 복제를 중지하십시오.</translation>
    </message>
    <message>
        <source>Scan Disk</source>
        <translation>디스크 검사</translation>
    </message>
    <message>
        <source>Scaning Running.</source>
        <translation>검사 중입니다.</translation>
    </message>
    <message>
        <source>Disk scan running.</source>
        <translation>디스크 검사가 진행 중입니다.</translation>
    </message>
    <message>
        <source>Please halt the scan process to exit.</source>
        <translation>종료하려면 검사를 중지하십시오.</translation>
    </message>
    <message>
        <source>SMART Status</source>
        <translation>SMART 상태</translation>
    </message>
    <message>
        <source>Please wait. Application Refreshing...</source>
        <translation>잠시 기다려 주십시오. 새로 고치는 중...</translation>
    </message>
    <message>
        <source>Stop Clone</source>
        <translation>복제 중지</translation>
    </message>
    <message>
        <source>Cloning can not be resumed from the current stage.</source>
        <translation>현재 단계에서 복제를 다시 시작할 수 없습니다.</translation>
    </message>
    <message>
        <source>Do you wish to abort the cloning?</source>
        <translation>복제를 중단하시겠습니까?</translation>
    </message>
    <message>
        <source>Stop Scan</source>
        <translation>검사 중지</translation>
    </message>
    <message>
        <source>Scan can not be resumed from the current stage.</source>
        <translation>현재 단계에서 검사를 다시 시작할 수 없습니다.</translation>
    </message>
    <message>
        <source>Do you wish to abort the scan?</source>
        <translation>검사를 중단하시겠습니까?</translation>
    </message>
    <message>
        <source>(BitLocker)</source>
        <translation>(BitLocker)</translation>
    </message>
    <message>
        <source>No Partition Found</source>
        <translation>파티션을 찾을 수 없음</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>파일 저장</translation>
    </message>
    <message>
        <source>Self-test can not be resumed from the current stage.</source>
        <translation>현재 단계에서 자가 진단을 다시 시작할 수 없습니다.</translation>
    </message>
    <message>
        <source>Do you wish to abort the Self-test?</source>
        <translation>자가 진단을 중단하시겠습니까?</translation>
    </message>
    <message>
        <source>Please wait. Getting SMART information...</source>
        <translation>잠시 기다려 주십시오. SMART 정보를 가져오는 중...</translation>
    </message>
    <message>
        <source>Graph : </source>
        <translation>그래프: </translation>
    </message>
    <message>
        <source>Running, no problems found</source>
        <translation>진행 중, 문제가 발견되지 않음</translation>
    </message>
    <message>
        <source>Test failed by Read Element</source>
        <translation>읽기 요소로 인해 진단 실패</translation>
    </message>
    <message>
        <source>Test Interrupted by the Host</source>
        <translation>호스트가 진단을 중단함</translation>
    </message>
    <message>
        <source>Test ended by Fatal or Unknown Error</source>
        <translation>치명적 또는 알 수 없는 오류로 종료</translation>
    </message>
    <message>
        <source>Test failed by Unknown Element</source>
        <translation>알 수 없는 요소로 인해 진단 실패</translation>
    </message>
    <message>
        <source>Test failed by Electrical Element</source>
        <translation>전기 요소로 인해 진단 실패</translation>
    </message>
    <message>
        <source>Test failed by Servo Element</source>
        <translation>서보 요소로 인해 진단 실패</translation>
    </message>
    <message>
        <source>Test failed, Handling Damage suspected</source>
        <translation>진단 실패, 취급 손상 의심</translation>
    </message>
    <message>
        <source>Test ended with Unknown Status</source>
        <translation>알 수 없는 상태로 진단 종료</translation>
    </message>
    <message>
        <source>No Status from the Drive</source>
        <translation>디스크에서 상태 응답 없음</translation>
    </message>
    <message>
        <source>Test Aborted by User</source>
        <translation>사용자가 진단을 중단함</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> 분</translation>
    </message>
    <message>
        <source>Healthy</source>
        <translation>정상</translation>
    </message>
    <message>
        <source>Not Healthy</source>
        <translation>비정상</translation>
    </message>
    <message>
        <source>% Free</source>
        <translation>% 여유</translation>
    </message>
    <message>
        <source> Free of </source>
        <translation> / </translation>
    </message>
    <message>
        <source> Available</source>
        <translation> 사용 가능</translation>
    </message>
    <message>
        <source>The self-test has ended.</source>
        <translation>자가 진단이 끝났습니다.</translation>
    </message>
    <message>
        <source>%1 volumes: %2</source>
        <translation>볼륨 %1개: %2</translation>
    </message>
    <message>
        <source>From %1 to %2: lowest value %3, highest %4, latest %5</source>
        <translation>%1~%2: 최솟값 %3, 최댓값 %4, 최근 값 %5</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>보통</translation>
    </message>
</context>
<context>
    <name>Monitor</name>
    <message>
        <source>Back up this disk now.</source>
        <translation>지금 이 디스크를 백업하세요.</translation>
    </message>
    <message>
        <source>temperature %1, limit %2</source>
        <translation>온도 %1, 한계값 %2</translation>
    </message>
    <message>
        <source>See to its cooling.</source>
        <translation>냉각 상태를 확인하세요.</translation>
    </message>
    <message>
        <source>temperature %1, shutdown limit %2</source>
        <translation>온도 %1, 시스템 종료 한계값 %2</translation>
    </message>
    <message>
        <source>It is advisable to shut down the system now.</source>
        <translation>지금 시스템을 종료하는 것이 좋습니다.</translation>
    </message>
    <message>
        <source>the drive reports that it is failing: %3</source>
        <translation>드라이브가 고장을 보고함: %3</translation>
    </message>
    <message>
        <source>the drive reports that it is failing</source>
        <translation>드라이브가 고장을 보고함</translation>
    </message>
    <message>
        <source>critical warning: %3</source>
        <translation>심각한 경고: %3</translation>
    </message>
    <message>
        <source>failing attributes: %3</source>
        <translation>실패한 속성: %3</translation>
    </message>
    <message>
        <source>reallocated sectors: %1 (before: %2)</source>
        <translation>재할당된 섹터: %1(이전: %2)</translation>
    </message>
    <message>
        <source>reallocated sectors: %1</source>
        <translation>재할당된 섹터: %1</translation>
    </message>
    <message>
        <source>pending sectors: %1 (before: %2)</source>
        <translation>보류 중인 섹터: %1(이전: %2)</translation>
    </message>
    <message>
        <source>pending sectors: %1</source>
        <translation>보류 중인 섹터: %1</translation>
    </message>
    <message>
        <source>uncorrectable errors: %1 (before: %2)</source>
        <translation>수정 불가 오류: %1(이전: %2)</translation>
    </message>
    <message>
        <source>uncorrectable errors: %1</source>
        <translation>수정 불가 오류: %1</translation>
    </message>
    <message>
        <source>media errors: %1 (before: %2)</source>
        <translation>미디어 오류: %1(이전: %2)</translation>
    </message>
    <message>
        <source>media errors: %1</source>
        <translation>미디어 오류: %1</translation>
    </message>
    <message>
        <source>spare %1 %, threshold %2 %</source>
        <translation>예비 공간 %1 %, 임계값 %2 %</translation>
    </message>
    <message>
        <source>wear %1 %</source>
        <translation>마모 %1 %</translation>
    </message>
    <message>
        <source>Plan to replace this disk, and keep a backup.</source>
        <translation>이 디스크의 교체를 계획하고 백업을 유지하세요.</translation>
    </message>
    <message>
        <source>the self-test failed: %3</source>
        <translation>자가 진단 실패: %3</translation>
    </message>
    <message>
        <source>the disk does not answer</source>
        <translation>디스크가 응답하지 않음</translation>
    </message>
    <message>
        <source>Check its cable. Back it up as soon as it answers.</source>
        <translation>케이블을 확인하세요. 응답하면 바로 백업하세요.</translation>
    </message>
    <message>
        <source>the disk is missing</source>
        <translation>디스크가 없음</translation>
    </message>
    <message>
        <source>Check its cable. If it comes back, back it up.</source>
        <translation>케이블을 확인하세요. 다시 나타나면 백업하세요.</translation>
    </message>
    <message>
        <source>the disk is back</source>
        <translation>디스크가 다시 나타남</translation>
    </message>
    <message>
        <source>the log cannot be written: %3</source>
        <translation>로그를 쓸 수 없음: %3</translation>
    </message>
    <message>
        <source>Choose another file for it in Settings.</source>
        <translation>설정에서 다른 파일을 선택하세요.</translation>
    </message>
    <message>
        <source>the spare is used up</source>
        <translation>예비 공간이 소진됨</translation>
    </message>
    <message>
        <source>too hot or too cold</source>
        <translation>너무 뜨겁거나 너무 차가움</translation>
    </message>
    <message>
        <source>less reliable after errors of the medium</source>
        <translation>미디어 오류로 신뢰성이 낮아짐</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>the backup of its memory has failed</source>
        <translation>메모리 백업 장치 고장</translation>
    </message>
    <message>
        <source>the persistent memory is read-only</source>
        <translation>영구 메모리가 읽기 전용임</translation>
    </message>
</context>
<context>
    <name>QCheckUpdate</name>
    <message>
        <source>No update available.</source>
        <translation>사용 가능한 업데이트가 없습니다.</translation>
    </message>
</context>
<context>
    <name>QDownloadApp</name>
    <message>
        <source>Downloading under progress...</source>
        <translation>다운로드 중...</translation>
    </message>
    <message>
        <source>Time Elapsed: </source>
        <translation>경과 시간: </translation>
    </message>
    <message>
        <source> sec </source>
        <translation> 초 </translation>
    </message>
    <message>
        <source> MB copied) </source>
        <translation> MB 복사됨) </translation>
    </message>
    <message>
        <source> MB of  </source>
        <translation> MB /  </translation>
    </message>
    <message>
        <source>Transfer Rate: </source>
        <translation>전송 속도: </translation>
    </message>
    <message>
        <source> KB/sec </source>
        <translation> KB/초 </translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>소프트웨어 업데이트</translation>
    </message>
    <message>
        <source>Update failed 

Update failed due to partial download.</source>
        <translation>업데이트 실패 

다운로드가 완전하지 않아 업데이트하지 못했습니다.</translation>
    </message>
    <message>
        <source>The update could not be verified and was not started.</source>
        <translation>업데이트를 확인할 수 없어 시작하지 않았습니다.</translation>
    </message>
</context>
<context>
    <name>QGridView</name>
    <message>
        <source> to </source>
        <translation> ~ </translation>
    </message>
    <message>
        <source>Start Sector of current block: </source>
        <translation>현재 블록의 시작 섹터: </translation>
    </message>
    <message>
        <source>End Sector of current block: </source>
        <translation>현재 블록의 끝 섹터: </translation>
    </message>
    <message>
        <source>Current Block Size : </source>
        <translation>현재 블록 크기: </translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>%1 cells, %2 with unreadable sectors</source>
        <translation>셀 %1개, 그중 %2개에 읽을 수 없는 섹터가 있음</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Velmora Halvane already running. Cannot start more than one instance of the application.</source>
        <translation>Velmora Halvane이 이미 실행 중입니다. 응용 프로그램을 두 개 이상 시작할 수 없습니다.</translation>
    </message>
    <message>
        <source>Velmora Halvane cannot start: there is no folder for its temporary files that other users cannot change.</source>
        <translation>Velmora Halvane을 시작할 수 없습니다. 다른 사용자가 변경할 수 없는 임시 파일용 폴더가 없습니다.</translation>
    </message>
</context>
<context>
    <name>QRoundProgressBar</name>
    <message>
        <source>Complete</source>
        <translation>완료</translation>
    </message>
</context>
<context>
    <name>QShowUpdate</name>
    <message>
        <source>A new major release </source>
        <translation>새 메이저 버전 </translation>
    </message>
    <message>
        <source>A new minor update </source>
        <translation>새 마이너 업데이트 </translation>
    </message>
    <message>
        <source> is available. Click Update to proceed further.</source>
        <translation> 을(를) 사용할 수 있습니다. 계속하려면 업데이트를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Visit Update Page</source>
        <translation>업데이트 페이지 방문</translation>
    </message>
</context>
<context>
    <name>QWaitClass</name>
    <message>
        <source>Initializing Velmora Halvane...</source>
        <translation>Velmora Halvane 초기화 중...</translation>
    </message>
</context>
<context>
    <name>SaveListButton</name>
    <message>
        <source>Save List</source>
        <translation>목록 저장</translation>
    </message>
    <message>
        <source>The list could not be saved.</source>
        <translation>목록을 저장할 수 없습니다.</translation>
    </message>
    <message>
        <source>Saves the bad sectors as a text or as a map file of GNU ddrescue</source>
        <translation>불량 섹터를 텍스트 또는 GNU ddrescue 맵 파일로 저장합니다</translation>
    </message>
</context>
<context>
    <name>ScanDisk</name>
    <message>
        <source> hours</source>
        <translation> 시간</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> 분</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> 초</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>남은 시간</translation>
    </message>
    <message>
        <source>Time Elapsed</source>
        <translation>경과 시간</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Disk Scan</source>
        <translation>디스크 검사</translation>
    </message>
    <message>
        <source>Disk scan aborted.</source>
        <translation>디스크 검사가 중단되었습니다.</translation>
    </message>
    <message>
        <source>Disk scan aborted by user.</source>
        <translation>사용자가 디스크 검사를 중단했습니다.</translation>
    </message>
    <message>
        <source>Scan Completed</source>
        <translation>검사 완료</translation>
    </message>
    <message>
        <source>Scan Completed.</source>
        <translation>검사가 완료되었습니다.</translation>
    </message>
    <message>
        <source>Scan Failed</source>
        <translation>검사 실패</translation>
    </message>
    <message>
        <source>Scan Failed.</source>
        <translation>검사에 실패했습니다.</translation>
    </message>
    <message>
        <source>The disk is no longer connected.</source>
        <translation>디스크의 연결이 끊어졌습니다.</translation>
    </message>
    <message>
        <source>Sector %1 (LBA), byte offset %2</source>
        <translation>섹터 %1 (LBA), 바이트 오프셋 %2</translation>
    </message>
    <message>
        <source>Sectors %1 to %2 (LBA), byte offset %3</source>
        <translation>섹터 %1~%2 (LBA), 바이트 오프셋 %3</translation>
    </message>
    <message>
        <source>Disk:</source>
        <translation>디스크:</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>일련 번호:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>날짜:</translation>
    </message>
    <message>
        <source>Scanned: the first %1 of %2 sectors</source>
        <translation>검사 범위: 전체 %2개 섹터 중 처음 %1개</translation>
    </message>
    <message>
        <source>Result:</source>
        <translation>결과:</translation>
    </message>
    <message>
        <source>Bad sectors: %1</source>
        <translation>불량 섹터: %1</translation>
    </message>
</context>
<context>
    <name>ScanSwitchDialog</name>
    <message>
        <source>Scan Disk</source>
        <translation>디스크 검사</translation>
    </message>
    <message>
        <source>Scan results will be lost if you move away from this screen. </source>
        <translation>이 화면에서 나가면 검사 결과가 손실됩니다. </translation>
    </message>
    <message>
        <source>Do you want to move away from this screen?</source>
        <translation>이 화면에서 나가시겠습니까?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
</context>
<context>
    <name>SelfTestNotSupportedDialog</name>
    <message>
        <source>Drive Test</source>
        <translation>드라이브 진단</translation>
    </message>
    <message>
        <source>Self-test not supported.</source>
        <translation>자가 진단이 지원되지 않습니다.</translation>
    </message>
    <message>
        <source>Selected disk doesn&apos;t support self test.</source>
        <translation>선택한 디스크는 자가 진단을 지원하지 않습니다.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>SelfTestPanelForm</name>
    <message>
        <source>Model</source>
        <translation>모델</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>일련 번호</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Polling Time</source>
        <translation>예상 시간</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>남은 시간</translation>
    </message>
    <message>
        <source>Time Elapsed</source>
        <translation>경과 시간</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Save log file</source>
        <translation>로그 파일 저장</translation>
    </message>
    <message>
        <source>Your Software has all latest updates installed.</source>
        <translation>소프트웨어에 최신 업데이트가 모두 설치되어 있습니다.</translation>
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
        <translation>업데이트</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
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
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>SmartShutdownDialog</name>
    <message>
        <source>Shutdown Warning</source>
        <translation>시스템 종료 경고</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Hard Disk&apos;s temperature has reached the shutdown value.</source>
        <translation>하드 디스크의 온도가 시스템 종료 온도에 도달했습니다.</translation>
    </message>
    <message>
        <source>It is advisable to shutdown the system immediately.</source>
        <translation>시스템을 즉시 종료하는 것이 좋습니다.</translation>
    </message>
    <message>
        <source>Shutdown</source>
        <translation>시스템 종료</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
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
        <translation>속성 이름</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>최저값</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>임계값</translation>
    </message>
    <message>
        <source>Raw Value</source>
        <translation>원시 값</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>업데이트됨</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>Better</source>
        <translation>개선</translation>
    </message>
    <message>
        <source>Overall Status</source>
        <translation>전체 상태</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>값</translation>
    </message>
    <message>
        <source>AttName</source>
        <translation>AttName</translation>
    </message>
    <message>
        <source>PASSED</source>
        <translation>통과</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>그래프</translation>
    </message>
    <message>
        <source>FAIELD</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>ATA Disk</source>
        <translation>ATA 디스크</translation>
    </message>
</context>
<context>
    <name>SmartWarningDialog</name>
    <message>
        <source>SMART Warning</source>
        <translation>SMART 경고</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Hard Disk&apos;s temperature exceed the threshold value.</source>
        <translation>하드 디스크의 온도가 임계값을 초과했습니다.</translation>
    </message>
    <message>
        <source>Your hard disk&apos;s temperature has exceeded threshold value. This may damage hard disk. It is advisable to shutdown the system immediately.</source>
        <translation>하드 디스크의 온도가 임계값을 초과했습니다. 하드 디스크가 손상될 수 있습니다. 시스템을 즉시 종료하는 것이 좋습니다.</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>다시 표시 안 함</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Refresh now</source>
        <translation>지금 새로 고침</translation>
    </message>
    <message>
        <source>Pause alarms for an hour</source>
        <translation>한 시간 동안 알람 일시 중지</translation>
    </message>
    <message>
        <source>Show lowest health</source>
        <translation>가장 낮은 건강 상태 표시</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>종료</translation>
    </message>
</context>
<context>
    <name>VolumeFrame</name>
    <message>
        <source>Partition</source>
        <translation>파티션</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>공간</translation>
    </message>
</context>
<context>
    <name>m_pCloneDiskwgt</name>
    <message>
        <source>Disk Details</source>
        <translation>디스크 세부 정보</translation>
    </message>
    <message>
        <source>Source Disk</source>
        <translation>원본 디스크</translation>
    </message>
    <message>
        <source>Target Disk</source>
        <translation>대상 디스크</translation>
    </message>
    <message>
        <source>Remaining Time</source>
        <translation>남은 시간</translation>
    </message>
</context>
<context>
    <name>m_pCloseWgt</name>
    <message>
        <source>Exit</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Are you sure you want to exit?</source>
        <translation>종료하시겠습니까?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
</context>
<context>
    <name>m_pDiskPartitionWgt</name>
    <message>
        <source>Disk Partition</source>
        <translation>디스크 파티션</translation>
    </message>
    <message>
        <source>Partition Details</source>
        <translation>파티션 세부 정보</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>일련 번호</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>용량</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>인터페이스 유형</translation>
    </message>
</context>
<context>
    <name>m_pDiskStatus</name>
    <message>
        <source>Disk Details</source>
        <translation>디스크 세부 정보</translation>
    </message>
    <message>
        <source>Disk Number</source>
        <translation>디스크 번호</translation>
    </message>
    <message>
        <source>Model Number</source>
        <translation>모델 번호</translation>
    </message>
    <message>
        <source>Firmware Revision</source>
        <translation>펌웨어 버전</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>인터페이스 유형</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>일련 번호</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>총 섹터 수</translation>
    </message>
    <message>
        <source>Hard Disk Life</source>
        <translation>하드 디스크 수명</translation>
    </message>
    <message>
        <source>Power-on Time</source>
        <translation>전원 켜짐 시간</translation>
    </message>
    <message>
        <source>Start/Stop Count</source>
        <translation>시작/정지 횟수</translation>
    </message>
    <message>
        <source>Drive&apos;s verdict</source>
        <translation>드라이브 자체 판정</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>온도</translation>
    </message>
    <message>
        <source>Performance</source>
        <translation>성능</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>건강 상태</translation>
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
        <translation>일련 번호</translation>
    </message>
    <message>
        <source>SMART Status</source>
        <translation>SMART 상태</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>복제</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>중지</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>보고서 저장</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>스크린샷</translation>
    </message>
    <message>
        <source>View Velmora Halvane help document</source>
        <translation>Velmora Halvane 도움말 문서 보기</translation>
    </message>
    <message>
        <source>More Tools</source>
        <translation>추가 도구</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>메뉴</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Recover Data</source>
        <translation>데이터 복구</translation>
    </message>
    <message>
        <source>Repair Video</source>
        <translation>동영상 복구</translation>
    </message>
    <message>
        <source>Repair Photo</source>
        <translation>사진 복구</translation>
    </message>
</context>
<context>
    <name>m_pScanDiskwgt</name>
    <message>
        <source>Scan Disk</source>
        <translation>디스크 검사</translation>
    </message>
    <message>
        <source>Disk Size</source>
        <translation>디스크 크기</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>총 섹터 수</translation>
    </message>
    <message>
        <source>Block Size</source>
        <translation>블록 크기</translation>
    </message>
    <message>
        <source>  Processed</source>
        <translation>  처리됨</translation>
    </message>
    <message>
        <source>  Bad Sectors</source>
        <translation>  불량 섹터</translation>
    </message>
    <message>
        <source>  Processing</source>
        <translation>  처리 중</translation>
    </message>
    <message>
        <source>Short Self-test</source>
        <translation>짧은 자가 진단</translation>
    </message>
    <message>
        <source>Extended Self-test</source>
        <translation>확장 자가 진단</translation>
    </message>
    <message>
        <source>Perform a surface scan on the selected disk to identify if the disk has bad sectors.</source>
        <translation>선택한 디스크의 표면을 검사하여 불량 섹터가 있는지 확인합니다.</translation>
    </message>
    <message>
        <source>Run this test to check the electrical and mechanical performance of a device along with the read/write operations on a portion of the disk. This test may take few minutes to complete.</source>
        <translation>장치의 전기적, 기계적 성능과 디스크 일부에 대한 읽기/쓰기 작업을 확인합니다. 이 진단은 몇 분 정도 걸릴 수 있습니다.</translation>
    </message>
    <message>
        <source>This test is same as a short self-test with a complete disk surface examination. This test may take up to few hours to complete.</source>
        <translation>짧은 자가 진단과 함께 디스크 표면 전체를 검사합니다. 이 진단은 몇 시간 정도 걸릴 수 있습니다.</translation>
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
        <translation>  설정</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Show status in tray</source>
        <translation>트레이에 상태 표시</translation>
    </message>
    <message>
        <source>English</source>
        <translation>영어</translation>
    </message>
    <message>
        <source>German</source>
        <translation>독일어</translation>
    </message>
    <message>
        <source>French</source>
        <translation>프랑스어</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>이탈리아어</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>스페인어</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>네덜란드어</translation>
    </message>
    <message>
        <source>Portuguese (Brazil)</source>
        <translation>포르투갈어(브라질)</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>힌디어</translation>
    </message>
    <message>
        <source>LOGS</source>
        <translation>로그</translation>
    </message>
    <message>
        <source>Save log file</source>
        <translation>로그 파일 저장</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Max log size (KB)</source>
        <translation>최대 로그 크기(KB)</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>온도</translation>
    </message>
    <message>
        <source>Show Temperature in</source>
        <translation>온도 표시 단위</translation>
    </message>
    <message>
        <source>Celsius</source>
        <translation>섭씨</translation>
    </message>
    <message>
        <source>Fahrenheit</source>
        <translation>화씨</translation>
    </message>
    <message>
        <source>Enable Temperature Alarm</source>
        <translation>온도 알람 사용</translation>
    </message>
    <message>
        <source>Warning Temperature</source>
        <translation>경고 온도</translation>
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
        <translation>시스템 종료 온도</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>업데이트 확인</translation>
    </message>
    <message>
        <source>View Velmora Halvane help document</source>
        <translation>Velmora Halvane 도움말 문서 보기</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>m_pSmartWgt</name>
    <message>
        <source>SMART Status : </source>
        <translation>SMART 상태: </translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>일련 번호</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>용량</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>인터페이스 유형</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>보고서 저장</translation>
    </message>
    <message>
        <source>Smart Status</source>
        <translation>SMART 상태</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
</context>
</TS>
