<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
<context>
    <name></name>
    <message id="ID_CameraPage_1">
        <source></source>
        <translation>1. 장치가 연결되어 있고 목록에서 선택되었는지 확인하세요.</translation>
    </message>
    <message id="ID_CameraPage_2">
        <source></source>
        <translation>2. 카메라를 사용하는 다른 프로그램을 닫으세요.</translation>
    </message>
    <message id="ID_CameraPage_3">
        <source></source>
        <translation>3. 렌즈 덮개를 열거나 카메라 키로 카메라를 켜세요.</translation>
    </message>
    <message id="ID_CameraPage_4">
        <source></source>
        <translation>4. 시스템의 개인 정보 설정에서 카메라를 허용하세요.</translation>
    </message>
    <message id="ID_CameraPage_5">
        <source></source>
        <translation>5. 컴퓨터를 다시 시작하거나 다른 장치를 사용해 보세요.</translation>
    </message>
    <message id="ID_CameraPage_Camera">
        <source></source>
        <translation>카메라:</translation>
    </message>
    <message id="ID_CameraPage_CameraDisabled">
        <source></source>
        <translation>카메라가 꺼져 있습니다</translation>
    </message>
    <message id="ID_CameraPage_CannotSee">
        <source></source>
        <translation>안 보여요</translation>
    </message>
    <message id="ID_CameraPage_ClickHere">
        <source></source>
        <translation>내 모습이 보이지 않나요? 여기를 클릭하세요</translation>
    </message>
    <message id="ID_CameraPage_DisabledWillMakeCameraUnusable">
        <source></source>
        <translation>카메라가 꺼져 있습니다. 여기서 선택하거나 켜 주세요.</translation>
    </message>
    <message id="ID_CameraPage_No">
        <source></source>
        <translation>안 보여요</translation>
    </message>
    <message id="ID_CameraPage_NoCameraImageWasDetected">
        <source></source>
        <translation>카메라 영상이 없습니다</translation>
    </message>
    <message id="ID_CameraPage_NotDetected">
        <source></source>
        <translation>아직 답하지 않은 항목입니다</translation>
    </message>
    <message id="ID_CameraPage_Yes">
        <source></source>
        <translation>네, 보여요</translation>
    </message>
    <message id="ID_CameraPage_choseNo">
        <source></source>
        <translation>내 모습이 보이지 않습니다</translation>
    </message>
    <message id="ID_Camera_Check">
        <source></source>
        <translation>카메라</translation>
    </message>
    <message id="ID_CheckResultPage_Abnormal">
        <source></source>
        <translation>이상</translation>
    </message>
    <message id="ID_CheckResultPage_CheckEquipmentAndRetest">
        <source></source>
        <translation>장치를 확인하고 다시 점검하세요.</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentAbnormal">
        <source></source>
        <translation>문제가 있습니다</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentNormal">
        <source></source>
        <translation>모두 정상입니다</translation>
    </message>
    <message id="ID_CheckResultPage_Headphone">
        <source></source>
        <translation>스피커</translation>
    </message>
    <message id="ID_CheckResultPage_Normal">
        <source></source>
        <translation>정상</translation>
    </message>
    <message id="ID_CheckResultPage_OK">
        <source></source>
        <translation>수업 준비가 되었습니다.</translation>
    </message>
    <message id="ID_CheckResultPage_Redetect">
        <source></source>
        <translation>다시 점검</translation>
    </message>
    <message id="ID_CheckResultPage_System">
        <source></source>
        <translation>시스템</translation>
    </message>
    <message id="ID_ContentPage_NotFinishedIfLeave">
        <source></source>
        <translation>시스템 점검이 끝나지 않았습니다. 나가시겠습니까?</translation>
    </message>
    <message id="ID_Engine_BuiltInResponder">
        <source></source>
        <translation>측정 안 됨: 서버 없음</translation>
    </message>
    <message id="ID_Engine_Camera_Absent">
        <source></source>
        <translation>카메라를 찾을 수 없습니다.
이 컴퓨터에 카메라를 연결하세요.</translation>
    </message>
    <message id="ID_Engine_Camera_Black">
        <source></source>
        <translation>영상이 검게 나옵니다.
렌즈 덮개를 열거나 불을 켜세요.</translation>
    </message>
    <message id="ID_Engine_Camera_Busy">
        <source></source>
        <translation>다른 프로그램이 카메라를 사용 중입니다.
그 프로그램을 닫으세요.</translation>
    </message>
    <message id="ID_Engine_Camera_BusyBy">
        <source></source>
        <translation>카메라를 사용 중인 프로그램: %1
이 프로그램을 닫으세요.</translation>
    </message>
    <message id="ID_Engine_Camera_Denied">
        <source></source>
        <translation>시스템이 카메라 접근을 거부했습니다.
시스템의 개인 정보 설정에서 허용하세요.</translation>
    </message>
    <message id="ID_Engine_Camera_Failed">
        <source></source>
        <translation>카메라가 작동하지 않습니다.
다시 연결하거나 다른 카메라를 선택하세요.</translation>
    </message>
    <message id="ID_Engine_Camera_Hung">
        <source></source>
        <translation>카메라가 응답하지 않습니다.
다시 연결하거나 컴퓨터를 다시 시작하세요.</translation>
    </message>
    <message id="ID_Engine_Camera_NotBuilt">
        <source></source>
        <translation>이 프로그램은 이 시스템에서 카메라를 사용할 수 없습니다.
다른 프로그램에서 확인해 보세요.</translation>
    </message>
    <message id="ID_Engine_Camera_ServerLost">
        <source></source>
        <translation>이 컴퓨터의 카메라 서비스가 실행되고 있지 않습니다.
잠시 기다리거나 컴퓨터를 다시 시작하세요.</translation>
    </message>
    <message id="ID_Engine_Camera_Stalled">
        <source></source>
        <translation>카메라 영상이 없습니다.
다시 연결하거나 다른 카메라를 선택하세요.</translation>
    </message>
    <message id="ID_Engine_Camera_Starting">
        <source></source>
        <translation>카메라를 시작하는 중…</translation>
    </message>
    <message id="ID_Engine_Camera_Unplugged">
        <source></source>
        <translation>카메라 연결이 끊어졌습니다.
다시 연결하거나 다른 카메라를 선택하세요.</translation>
    </message>
    <message id="ID_Engine_Camera_Unreadable">
        <source></source>
        <translation>이 카메라의 영상은 여기에서 표시할 수 없습니다.
다른 카메라를 선택하거나 카메라 설정에서 다른 형식을 선택하세요.</translation>
    </message>
    <message id="ID_Engine_File_BadEnd">
        <source></source>
        <translation>Windows에서는 이름이 점이나 공백으로 끝날 수 없습니다</translation>
    </message>
    <message id="ID_Engine_File_BadLetter">
        <source></source>
        <translation>Windows에서는 이름에 &lt; &gt; : " | ? * 또는 제어 문자를 쓸 수 없습니다</translation>
    </message>
    <message id="ID_Engine_File_DeadLink">
        <source></source>
        <translation>대상이 없는 링크입니다</translation>
    </message>
    <message id="ID_Engine_File_DeviceName">
        <source></source>
        <translation>%1은(는) Windows에서 장치 이름입니다</translation>
    </message>
    <message id="ID_Engine_File_DiskSilent">
        <source></source>
        <translation>디스크가 응답하지 않습니다</translation>
    </message>
    <message id="ID_Engine_File_ForeignLink">
        <source></source>
        <translation>다른 사용자가 소유한 링크입니다</translation>
    </message>
    <message id="ID_Engine_File_LockHeld">
        <source></source>
        <translation>다른 프로그램이 잠금 파일 %1을(를) 쓰고 있습니다</translation>
    </message>
    <message id="ID_Engine_File_LockNotMade">
        <source></source>
        <translation>잠금 파일을 만들 수 없습니다</translation>
    </message>
    <message id="ID_Engine_File_LockNotRegular">
        <source></source>
        <translation>잠금 파일 %1이(가) 일반 파일이 아닙니다</translation>
    </message>
    <message id="ID_Engine_File_NoFolder">
        <source></source>
        <translation>폴더를 만들 수 없습니다</translation>
    </message>
    <message id="ID_Engine_File_NotMade">
        <source></source>
        <translation>새 내용을 만들 수 없습니다. 디스크가 가득 찼습니까?</translation>
    </message>
    <message id="ID_Engine_File_NotRegular">
        <source></source>
        <translation>일반 파일이 아닙니다</translation>
    </message>
    <message id="ID_Engine_File_TooLarge">
        <source></source>
        <translation>%1 MiB보다 큽니다</translation>
    </message>
    <message id="ID_Engine_File_TooManyChanges">
        <source></source>
        <translation>디스크 쓰기를 기다리는 변경이 너무 많습니다</translation>
    </message>
    <message id="ID_Engine_Json_Document">
        <source></source>
        <translation>문서는 객체여야 합니다</translation>
    </message>
    <message id="ID_Engine_Json_Empty">
        <source></source>
        <translation>비어 있으면 안 됩니다</translation>
    </message>
    <message id="ID_Engine_Json_Flag">
        <source></source>
        <translation>true 또는 false여야 합니다</translation>
    </message>
    <message id="ID_Engine_Json_Invalid">
        <source></source>
        <translation>올바른 JSON이 아닙니다: %1</translation>
    </message>
    <message id="ID_Engine_Json_List">
        <source></source>
        <translation>목록이어야 합니다</translation>
    </message>
    <message id="ID_Engine_Json_Missing">
        <source></source>
        <translation>항목이 없습니다</translation>
    </message>
    <message id="ID_Engine_Json_Number">
        <source></source>
        <translation>숫자여야 합니다</translation>
    </message>
    <message id="ID_Engine_Json_Object">
        <source></source>
        <translation>객체여야 합니다</translation>
    </message>
    <message id="ID_Engine_Json_ShortList">
        <source></source>
        <translation>요소가 %1개 이하인 목록이어야 합니다</translation>
    </message>
    <message id="ID_Engine_Json_ShortText">
        <source></source>
        <translation>%1자 이하의 텍스트여야 합니다</translation>
    </message>
    <message id="ID_Engine_Json_Text">
        <source></source>
        <translation>텍스트여야 합니다</translation>
    </message>
    <message id="ID_Engine_Json_Twice">
        <source></source>
        <translation>두 번 나옵니다</translation>
    </message>
    <message id="ID_Engine_Json_Unknown">
        <source></source>
        <translation>여기서 알려진 필드가 아닙니다</translation>
    </message>
    <message id="ID_Engine_Json_WholeNumber">
        <source></source>
        <translation>%1에서 %2 사이의 정수여야 합니다</translation>
    </message>
    <message id="ID_Engine_Json_Word">
        <source></source>
        <translation>다음 중 하나여야 합니다: %1</translation>
    </message>
    <message id="ID_Engine_Json_WordList">
        <source></source>
        <translation>다음 단어로 된 목록이어야 합니다: %1</translation>
    </message>
    <message id="ID_Engine_NoCamera">
        <source></source>
        <translation>카메라 없음</translation>
    </message>
    <message id="ID_Engine_NoMicrophone">
        <source></source>
        <translation>마이크 없음</translation>
    </message>
    <message id="ID_Engine_NoSpeaker">
        <source></source>
        <translation>스피커를 찾을 수 없음</translation>
    </message>
    <message id="ID_Engine_NoSpeakerSelected">
        <source></source>
        <translation>선택된 스피커 없음</translation>
    </message>
    <message id="ID_Engine_NotConnected">
        <source></source>
        <translation>연결되어 있지 않음</translation>
    </message>
    <message id="ID_Engine_Scenario_Base">
        <source></source>
        <translation>기본 제공 시나리오의 이름이어야 합니다</translation>
    </message>
    <message id="ID_Engine_Scenario_Levels">
        <source></source>
        <translation>[밀리초, 음량]이어야 합니다. 밀리초는 0부터 커지고 음량은 0에서 1까지입니다</translation>
    </message>
    <message id="ID_Engine_Scenario_NoDevice">
        <source></source>
        <translation>이 시나리오에 그런 %1이(가) 없습니다</translation>
    </message>
    <message id="ID_Engine_Scenario_NoVolume">
        <source></source>
        <translation>카메라에는 음량이 없습니다</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRead">
        <source></source>
        <translation>읽을 수 없습니다: %1</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRegular">
        <source></source>
        <translation>일반 파일이 아닙니다. 시나리오 파일을 지정하세요</translation>
    </message>
    <message id="ID_Engine_Scenario_SameId">
        <source></source>
        <translation>목록에서 하나뿐이어야 합니다</translation>
    </message>
    <message id="ID_Engine_Scenario_TooLarge">
        <source></source>
        <translation>1 MiB보다 큽니다. 시나리오 파일을 지정하세요</translation>
    </message>
    <message id="ID_Engine_Scenario_TooManyDevices">
        <source></source>
        <translation>이 종류의 서로 다른 장치가 %1개를 넘습니다. 전에 있던 장치를 연결하세요</translation>
    </message>
    <message id="ID_Engine_Scenario_Unknown">
        <source></source>
        <translation>그런 파일도, 그런 이름의 기본 제공 시나리오도 없습니다(있는 것: %1)</translation>
    </message>
    <message id="ID_Engine_SoundNotBuilt">
        <source></source>
        <translation>소리 없음: 지원하지 않는 시스템입니다</translation>
    </message>
    <message id="ID_Engine_SoundServerLost">
        <source></source>
        <translation>소리 서비스가 실행되고 있지 않음</translation>
    </message>
    <message id="ID_Engine_SoundServerSilent">
        <source></source>
        <translation>소리 서비스가 응답하지 않음</translation>
    </message>
    <message id="ID_Engine_TelephoneQuality">
        <source></source>
        <translation>%1(전화 음질)</translation>
    </message>
    <message id="ID_HeadsetPage_2">
        <source></source>
        <translation>2. 볼륨을 높이고 음소거되지 않았는지 확인하세요.</translation>
    </message>
    <message id="ID_HeadsetPage_3">
        <source></source>
        <translation>3. 플러그를 끝까지 꽂거나 블루투스를 다시 연결하세요.</translation>
    </message>
    <message id="ID_HeadsetPage_4">
        <source></source>
        <translation>4. 시스템의 소리 설정에서 같은 출력 장치를 선택하세요.</translation>
    </message>
    <message id="ID_HeadsetPage_Bubble">
        <source></source>
        <translation>물방울</translation>
    </message>
    <message id="ID_HeadsetPage_CanHear">
        <source></source>
        <translation>네, 들려요</translation>
    </message>
    <message id="ID_HeadsetPage_CanNotHear">
        <source></source>
        <translation>안 들려요</translation>
    </message>
    <message id="ID_HeadsetPage_ChoseWrong">
        <source></source>
        <translation>맞는 소리를 고르지 않았습니다</translation>
    </message>
    <message id="ID_HeadsetPage_ClickHere">
        <source></source>
        <translation>소리가 들리지 않나요? 여기를 클릭하세요</translation>
    </message>
    <message id="ID_HeadsetPage_Doorbell">
        <source></source>
        <translation>초인종</translation>
    </message>
    <message id="ID_HeadsetPage_Piano">
        <source></source>
        <translation>피아노</translation>
    </message>
    <message id="ID_HeadsetPage_Play">
        <source></source>
        <translation>재생</translation>
    </message>
    <message id="ID_HeadsetPage_PlayAgain">
        <source></source>
        <translation>다시 듣기</translation>
    </message>
    <message id="ID_HeadsetPage_Playing">
        <source></source>
        <translation>재생 중</translation>
    </message>
    <message id="ID_HeadsetPage_PleaseSelectTheAnswer">
        <source></source>
        <translation>어떤 소리가 들리나요?</translation>
    </message>
    <message id="ID_HeadsetPage_Saxophone">
        <source></source>
        <translation>색소폰</translation>
    </message>
    <message id="ID_HeadsetPage_Seagull">
        <source></source>
        <translation>갈매기</translation>
    </message>
    <message id="ID_HeadsetPage_Shutter">
        <source></source>
        <translation>셔터</translation>
    </message>
    <message id="ID_HeadsetPage_Speaker">
        <source></source>
        <translation>스피커:</translation>
    </message>
    <message id="ID_HeadsetPage_Thunder">
        <source></source>
        <translation>천둥</translation>
    </message>
    <message id="ID_HeadsetPage_Tip">
        <source></source>
        <translation>재생 버튼을 눌러 소리를 듣고, 들리는 소리를 고르세요.</translation>
    </message>
    <message id="ID_HeadsetPage_Typing">
        <source></source>
        <translation>타자 소리</translation>
    </message>
    <message id="ID_HeadsetPage_choseNo">
        <source></source>
        <translation>소리가 들리지 않습니다</translation>
    </message>
    <message id="ID_HeadsetPage_play">
        <source></source>
        <translation>재생</translation>
    </message>
    <message id="ID_HeadsetPage_sound0">
        <source></source>
        <translation>소리 1</translation>
    </message>
    <message id="ID_HeadsetPage_sound1">
        <source></source>
        <translation>소리 2</translation>
    </message>
    <message id="ID_HeadsetPage_sound2">
        <source></source>
        <translation>소리 3</translation>
    </message>
    <message id="ID_HeadsetPage_sound3">
        <source></source>
        <translation>소리 4</translation>
    </message>
    <message id="ID_Host_Changes">
        <source></source>
        <translation>변경 사항</translation>
    </message>
    <message id="ID_Host_Changes_None">
        <source></source>
        <translation>그 이후로 변경된 것이 없습니다.</translation>
    </message>
    <message id="ID_Host_Check_Loop">
        <source></source>
        <translation>음향 루프</translation>
    </message>
    <message id="ID_Host_Config_BadLine">
        <source></source>
        <translation>%1: 각 줄은 server=HOST 같은 KEY=VALUE이거나 세미콜론 뒤의 주석이어야 합니다. 파일에서 바로잡으세요</translation>
    </message>
    <message id="ID_Host_Config_BadValue">
        <source></source>
        <translation>%1: %2=%3: 가능한 값은 %4. 파일에서 바로잡으세요</translation>
    </message>
    <message id="ID_Host_Config_BadVariable">
        <source></source>
        <translation>%1=%2: 가능한 값은 %3</translation>
    </message>
    <message id="ID_Host_Config_UnknownKey">
        <source></source>
        <translation>%1: 알 수 없는 키 %2. 키는 server, report-url, report-token-file입니다</translation>
    </message>
    <message id="ID_Host_Config_Unreadable">
        <source></source>
        <translation>%1: 설정 파일로 읽을 수 없습니다. server=HOST 같은 줄이 있는 텍스트 파일을 두거나 삭제하세요</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerLost">
        <source></source>
        <translation>카메라 서비스가 실행되고 있지 않음</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerSilent">
        <source></source>
        <translation>카메라 서비스가 응답하지 않음</translation>
    </message>
    <message id="ID_Host_Devices_Cameras">
        <source></source>
        <translation>카메라</translation>
    </message>
    <message id="ID_Host_Devices_Microphones">
        <source></source>
        <translation>마이크</translation>
    </message>
    <message id="ID_Host_Devices_None">
        <source></source>
        <translation>찾을 수 없음</translation>
    </message>
    <message id="ID_Host_Devices_NotBuilt">
        <source></source>
        <translation>이 프로그램은 실제 장치 없이 빌드되었습니다(ENVCHECK_DEVICES). --platform scripted를 사용하세요</translation>
    </message>
    <message id="ID_Host_Devices_Speakers">
        <source></source>
        <translation>스피커</translation>
    </message>
    <message id="ID_Host_Display_Gone">
        <source></source>
        <translation>디스플레이 연결이 끊겨 점검이 끝났습니다. X 서버나 Wayland 컴포지터가 종료되었습니다. 점검을 다시 시작하세요</translation>
    </message>
    <message id="ID_Host_Display_None">
        <source></source>
        <translation>점검을 열 디스플레이가 없습니다. 데스크톱 세션이나 xvfb-run으로 시작하세요</translation>
    </message>
    <message id="ID_Host_Display_NotOpened">
        <source></source>
        <translation>디스플레이 %1을(를) 열 수 없습니다. 데스크톱 세션이나 xvfb-run으로 점검을 시작하세요</translation>
    </message>
    <message id="ID_Host_Exit_AllPassed">
        <source></source>
        <translation>모두 정상</translation>
    </message>
    <message id="ID_Host_Exit_BadInput">
        <source></source>
        <translation>지정한 파일을 사용할 수 없음</translation>
    </message>
    <message id="ID_Host_Exit_CannotWrite">
        <source></source>
        <translation>파일이나 폴더에 쓸 수 없음</translation>
    </message>
    <message id="ID_Host_Exit_LeftEarly">
        <source></source>
        <translation>사용자가 중간에 나감</translation>
    </message>
    <message id="ID_Host_Exit_PutOut">
        <source></source>
        <translation>교실에서 세션을 종료함</translation>
    </message>
    <message id="ID_Host_Exit_SomeFailed">
        <source></source>
        <translation>이상이 있는 점검 항목이 있음</translation>
    </message>
    <message id="ID_Host_Exit_TourProblems">
        <source></source>
        <translation>둘러보기에서 문제를 발견함</translation>
    </message>
    <message id="ID_Host_Exit_Unavailable">
        <source></source>
        <translation>디스플레이, 포트 또는 서버가 없음</translation>
    </message>
    <message id="ID_Host_Exit_WrongUsage">
        <source></source>
        <translation>잘못된 사용법: 메시지에 옵션이 표시됨</translation>
    </message>
    <message id="ID_Host_Figure_Answered">
        <source></source>
        <translation>응답받은 측정 패킷</translation>
    </message>
    <message id="ID_Host_Figure_Bandwidth">
        <source></source>
        <translation>들어온 소리의 최고 주파수</translation>
    </message>
    <message id="ID_Host_Figure_Black">
        <source></source>
        <translation>검은 영상 비율</translation>
    </message>
    <message id="ID_Host_Figure_Brightness">
        <source></source>
        <translation>밝기</translation>
    </message>
    <message id="ID_Host_Figure_Clipped">
        <source></source>
        <translation>클리핑(소리 깨짐)</translation>
    </message>
    <message id="ID_Host_Figure_DefaultAfter">
        <source></source>
        <translation>이후 기본 장치</translation>
    </message>
    <message id="ID_Host_Figure_DefaultBefore">
        <source></source>
        <translation>이전 기본 장치</translation>
    </message>
    <message id="ID_Host_Figure_Delay">
        <source></source>
        <translation>왕복 시간(중앙값)</translation>
    </message>
    <message id="ID_Host_Figure_Delay5">
        <source></source>
        <translation>왕복 시간(5백분위수)</translation>
    </message>
    <message id="ID_Host_Figure_Delay95">
        <source></source>
        <translation>왕복 시간(95백분위수)</translation>
    </message>
    <message id="ID_Host_Figure_FirstPicture">
        <source></source>
        <translation>첫 영상까지 걸린 시간</translation>
    </message>
    <message id="ID_Host_Figure_Frozen">
        <source></source>
        <translation>멈춘 영상 비율</translation>
    </message>
    <message id="ID_Host_Figure_Height">
        <source></source>
        <translation>영상 높이</translation>
    </message>
    <message id="ID_Host_Figure_HumFrequency">
        <source></source>
        <translation>전원 험 주파수</translation>
    </message>
    <message id="ID_Host_Figure_HumShare">
        <source></source>
        <translation>잡음 속 전원 험</translation>
    </message>
    <message id="ID_Host_Figure_Jitter">
        <source></source>
        <translation>지터</translation>
    </message>
    <message id="ID_Host_Figure_Level">
        <source></source>
        <translation>레벨</translation>
    </message>
    <message id="ID_Host_Figure_LoopDelay">
        <source></source>
        <translation>스피커에서 마이크까지의 지연</translation>
    </message>
    <message id="ID_Host_Figure_LoopLevel">
        <source></source>
        <translation>마이크에서의 레벨</translation>
    </message>
    <message id="ID_Host_Figure_Loss">
        <source></source>
        <translation>패킷 손실</translation>
    </message>
    <message id="ID_Host_Figure_Modes">
        <source></source>
        <translation>카메라 모드</translation>
    </message>
    <message id="ID_Host_Figure_MovedByUser">
        <source></source>
        <translation>사용자가 볼륨을 조절함</translation>
    </message>
    <message id="ID_Host_Figure_MutedAfter">
        <source></source>
        <translation>이후 음소거</translation>
    </message>
    <message id="ID_Host_Figure_MutedBefore">
        <source></source>
        <translation>이전 음소거</translation>
    </message>
    <message id="ID_Host_Figure_NoiseFloor">
        <source></source>
        <translation>배경 잡음</translation>
    </message>
    <message id="ID_Host_Figure_OneWayDelay">
        <source></source>
        <translation>편도 지연(왕복의 절반)</translation>
    </message>
    <message id="ID_Host_Figure_Peak">
        <source></source>
        <translation>가장 큰 소리</translation>
    </message>
    <message id="ID_Host_Figure_Pictures">
        <source></source>
        <translation>영상 프레임 수</translation>
    </message>
    <message id="ID_Host_Figure_Program">
        <source></source>
        <translation>사용 중인 프로그램</translation>
    </message>
    <message id="ID_Host_Figure_Rate">
        <source></source>
        <translation>영상 프레임 속도</translation>
    </message>
    <message id="ID_Host_Figure_Seconds">
        <source></source>
        <translation>측정 시간</translation>
    </message>
    <message id="ID_Host_Figure_Sent">
        <source></source>
        <translation>보낸 측정 패킷</translation>
    </message>
    <message id="ID_Host_Figure_SoundHeard">
        <source></source>
        <translation>소리가 들어옴</translation>
    </message>
    <message id="ID_Host_Figure_SoundPlayed">
        <source></source>
        <translation>재생한 소리</translation>
    </message>
    <message id="ID_Host_Figure_VolumeAfter">
        <source></source>
        <translation>이후 볼륨</translation>
    </message>
    <message id="ID_Host_Figure_VolumeBefore">
        <source></source>
        <translation>이전 볼륨</translation>
    </message>
    <message id="ID_Host_Figure_Width">
        <source></source>
        <translation>영상 너비</translation>
    </message>
    <message id="ID_Host_File_IsFolder">
        <source></source>
        <translation>폴더입니다. 그 안의 파일을 지정하세요</translation>
    </message>
    <message id="ID_Host_File_NameOther">
        <source></source>
        <translation>%1. 다른 파일을 지정하세요</translation>
    </message>
    <message id="ID_Host_File_NoFolder">
        <source></source>
        <translation>%1 폴더가 없습니다. 폴더를 만들거나 다른 파일을 지정하세요</translation>
    </message>
    <message id="ID_Host_File_NoObject">
        <source></source>
        <translation>문서가 객체가 아닙니다</translation>
    </message>
    <message id="ID_Host_File_NoReport">
        <source></source>
        <translation>%1: JSON 보고서가 아닙니다(%2). 점검에서 만든 보고서를 지정하세요</translation>
    </message>
    <message id="ID_Host_File_NoRight">
        <source></source>
        <translation>쓰기 권한이 없습니다. 다른 파일을 지정하세요</translation>
    </message>
    <message id="ID_Host_File_NotOrdinary">
        <source></source>
        <translation>일반 파일이 아닙니다. 다른 파일을 지정하세요</translation>
    </message>
    <message id="ID_Host_File_NotRead">
        <source></source>
        <translation>%1: 읽을 수 없습니다(%2). 점검에서 만든 보고서를 지정하세요</translation>
    </message>
    <message id="ID_Host_File_NotWritten">
        <source></source>
        <translation>%1: 쓸 수 없습니다. %2</translation>
    </message>
    <message id="ID_Host_File_TooLarge">
        <source></source>
        <translation>파일이 너무 큽니다</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodPicture">
        <source></source>
        <translation>‘아니요’라고 답했지만 움직이는 영상이 들어왔습니다.</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodSound">
        <source></source>
        <translation>‘아니요’라고 답했지만 마이크에 소리가 들어왔습니다.</translation>
    </message>
    <message id="ID_Host_Flag_NoToRightSound">
        <source></source>
        <translation>‘아니요’라고 답했지만 소리를 맞게 골랐습니다.</translation>
    </message>
    <message id="ID_Host_Flag_YesToBlackPicture">
        <source></source>
        <translation>검은 영상인데 ‘네’라고 답했습니다.</translation>
    </message>
    <message id="ID_Host_Flag_YesToFrozenPicture">
        <source></source>
        <translation>멈춘 영상인데 ‘네’라고 답했습니다.</translation>
    </message>
    <message id="ID_Host_Flag_YesToMutedSpeaker">
        <source></source>
        <translation>스피커가 음소거인데 ‘네’라고 답했습니다.</translation>
    </message>
    <message id="ID_Host_Flag_YesToSilence">
        <source></source>
        <translation>‘네’라고 답했지만 마이크에 아무 소리도 들어오지 않았습니다.</translation>
    </message>
    <message id="ID_Host_Flag_YesToWrongSound">
        <source></source>
        <translation>‘네’라고 답했지만 맞는 소리를 고르지 못했습니다.</translation>
    </message>
    <message id="ID_Host_Flag_YesWithoutPictures">
        <source></source>
        <translation>‘네’라고 답했지만 영상이 들어오지 않았습니다.</translation>
    </message>
    <message id="ID_Host_Grade">
        <source></source>
        <translation>네트워크 품질</translation>
    </message>
    <message id="ID_Host_Grade_Fair">
        <source></source>
        <translation>보통</translation>
    </message>
    <message id="ID_Host_Grade_FairUpTo">
        <source></source>
        <translation>%1까지 보통</translation>
    </message>
    <message id="ID_Host_Grade_Good">
        <source></source>
        <translation>좋음</translation>
    </message>
    <message id="ID_Host_Grade_GoodUpTo">
        <source></source>
        <translation>%1까지 좋음</translation>
    </message>
    <message id="ID_Host_Grade_Poor">
        <source></source>
        <translation>나쁨</translation>
    </message>
    <message id="ID_Host_Help_Arguments">
        <source></source>
        <translation>인수:</translation>
    </message>
    <message id="ID_Host_Help_Check">
        <source></source>
        <translation>온라인 수업 전에 네트워크, 카메라, 스피커, 마이크를 점검합니다.</translation>
    </message>
    <message id="ID_Host_Help_Commands">
        <source></source>
        <translation>명령:</translation>
    </message>
    <message id="ID_Host_Help_Devices">
        <source></source>
        <translation>카메라, 마이크, 스피커와 그 상태를 나열합니다. 종료 코드 0: 목록이 완전함(아무것도 찾지 못한 경우 포함), 69: 카메라 또는 소리 서비스가 실행되고 있지 않거나 응답하지 않음.</translation>
    </message>
    <message id="ID_Host_Help_ExitCodes">
        <source></source>
        <translation>종료 코드:</translation>
    </message>
    <message id="ID_Host_Help_File">
        <source></source>
        <translation>점검에서 만든 보고서. -는 표준 입력입니다. 생략하면 마지막 점검의 보고서입니다.</translation>
    </message>
    <message id="ID_Host_Help_History">
        <source></source>
        <translation>이전 점검을 결과와 보고서와 함께 나열합니다.</translation>
    </message>
    <message id="ID_Host_Help_Network">
        <source></source>
        <translation>지연과 패킷 손실을 측정하여 값을 바로 출력합니다.</translation>
    </message>
    <message id="ID_Host_Help_NoCommand">
        <source></source>
        <translation>명령이 없으면 점검이 열립니다. 명령마다 --help가 있습니다.</translation>
    </message>
    <message id="ID_Host_Help_Options">
        <source></source>
        <translation>옵션:</translation>
    </message>
    <message id="ID_Host_Help_Report">
        <source></source>
        <translation>이전 점검의 보고서를 텍스트, HTML, JSON으로 또는 여러 개를 하나의 표로 보여 줍니다.</translation>
    </message>
    <message id="ID_Host_Help_Serve">
        <source></source>
        <translation>작은 STUN 서버로서 중지될 때까지 다른 컴퓨터의 측정에 응답합니다.</translation>
    </message>
    <message id="ID_Host_Help_Usage">
        <source></source>
        <translation>사용법: %1</translation>
    </message>
    <message id="ID_Host_Help_UsageOptions">
        <source></source>
        <translation>[옵션]</translation>
    </message>
    <message id="ID_Host_History_NoReport">
        <source></source>
        <translation>이전 점검의 보고서가 없습니다. 점검을 실행하거나 보고서 파일(FILE)을 지정하세요</translation>
    </message>
    <message id="ID_Host_History_None">
        <source></source>
        <translation>이전 점검이 없습니다.</translation>
    </message>
    <message id="ID_Host_Language_Unknown">
        <source></source>
        <translation>--language %1: 이 언어의 텍스트가 없습니다. 다음 중 하나를 지정하세요: %2</translation>
    </message>
    <message id="ID_Host_LastGoodRun">
        <source></source>
        <translation>마지막으로 모두 정상인 점검</translation>
    </message>
    <message id="ID_Host_LastGoodRun_None">
        <source></source>
        <translation>이전에 모두 정상인 점검이 없습니다.</translation>
    </message>
    <message id="ID_Host_MeasuringFailed">
        <source></source>
        <translation>측정 실패: %1</translation>
    </message>
    <message id="ID_Host_Network_Ends">
        <source></source>
        <translation>서버 %1, 이 컴퓨터 %2</translation>
    </message>
    <message id="ID_Host_Network_Figures">
        <source></source>
        <translation>지연 %1 ms, 지터 %2 ms, 패킷 손실 %3%, 보냄 %4, 응답 %5: %6</translation>
    </message>
    <message id="ID_Host_Network_NameServer">
        <source></source>
        <translation>측정 안 됨: 서버 없음. --server, %1 또는 %2에서 지정하세요</translation>
    </message>
    <message id="ID_Host_Network_NoAnswer">
        <source></source>
        <translation>응답 없음, 패킷 손실 %1%, 보냄 %2, 응답 %3</translation>
    </message>
    <message id="ID_Host_Network_NoRoute">
        <source></source>
        <translation>서버로 가는 경로 없음, 손실 %1%, 보냄 %2, 응답 %3</translation>
    </message>
    <message id="ID_Host_Network_NoSuchServer">
        <source></source>
        <translation>서버를 찾을 수 없음, 패킷 손실 %1%, 보냄 %2, 응답 %3</translation>
    </message>
    <message id="ID_Host_Network_Refused">
        <source></source>
        <translation>서버가 거부함, 손실 %1%, 보냄 %2, 응답 %3</translation>
    </message>
    <message id="ID_Host_No">
        <source></source>
        <translation>아니요</translation>
    </message>
    <message id="ID_Host_NoAnswer">
        <source></source>
        <translation>답하지 않음</translation>
    </message>
    <message id="ID_Host_NotMeasured">
        <source></source>
        <translation>측정하지 않음: %1</translation>
    </message>
    <message id="ID_Host_Option_Account">
        <source></source>
        <translation>표시할 계정. 기본값은 시스템 사용자입니다.</translation>
    </message>
    <message id="ID_Host_Option_Cdn">
        <source></source>
        <translation>표시할 CDN.</translation>
    </message>
    <message id="ID_Host_Option_Count">
        <source></source>
        <translation>값 N개를 출력한 뒤 끝냅니다. 없으면 중지될 때까지 실행합니다.</translation>
    </message>
    <message id="ID_Host_Option_Diagnose">
        <source></source>
        <translation>--unattended처럼 측정하고 보고서, 장치, 버전, 로그를 원인을 찾는 사람을 위해 FILE.zip에 담습니다. --redact가 없으면 이름과 주소는 빠집니다.</translation>
    </message>
    <message id="ID_Host_Option_FilesFrom">
        <source></source>
        <translation>보고서 이름을 FILE에서도 읽습니다(한 줄에 하나). -는 표준 입력입니다.</translation>
    </message>
    <message id="ID_Host_Option_Format">
        <source></source>
        <translation>text(기본값), html, json. 보고서가 많으면 room(표), map(보고서마다 칸이 있는 페이지), csv, jsonl.</translation>
    </message>
    <message id="ID_Host_Option_Help">
        <source></source>
        <translation>이 도움말을 표시합니다.</translation>
    </message>
    <message id="ID_Host_Option_Json">
        <source></source>
        <translation>표 대신 JSON을 출력합니다.</translation>
    </message>
    <message id="ID_Host_Option_Language">
        <source></source>
        <translation>en, zh_CN 같은 텍스트 언어. 기본값은 시스템 언어입니다.</translation>
    </message>
    <message id="ID_Host_Option_Loop">
        <source></source>
        <translation>--unattended와 함께: 선택한 스피커로 1초 동안 작은 상승음을 재생하고 선택한 마이크에서 찾습니다. 소리가 납니다.</translation>
    </message>
    <message id="ID_Host_Option_Nickname">
        <source></source>
        <translation>표시할 닉네임. 기본값은 시스템 사용자입니다.</translation>
    </message>
    <message id="ID_Host_Option_Platform">
        <source></source>
        <translation>점검할 장치: devices(이 컴퓨터의 장치, 기본값) 또는 scripted(시뮬레이션).</translation>
    </message>
    <message id="ID_Host_Option_Port">
        <source></source>
        <translation>응답할 UDP 포트. 기본값은 3478이고 0이면 빈 포트를 사용합니다.</translation>
    </message>
    <message id="ID_Host_Option_Quiet">
        <source></source>
        <translation>점검에 실패해도 결과 창을 열지 않습니다.</translation>
    </message>
    <message id="ID_Host_Option_Redact">
        <source></source>
        <translation>제외할 정보: none(없음, 기본값), personal(주소, 이름, 계정) 또는 hash(짧은 코드로 바꿈).</translation>
    </message>
    <message id="ID_Host_Option_Report">
        <source></source>
        <translation>보고서를 기본 위치 대신 FILE에 씁니다. 확장자(.json, .html, .txt)로 형식이 정해지고, -는 표준 출력(JSON)입니다.</translation>
    </message>
    <message id="ID_Host_Option_ReportTokenFile">
        <source></source>
        <translation>보고서 서버가 요구하는 토큰이 든 파일. 본인이나 그룹만 읽을 수 있어야 합니다.</translation>
    </message>
    <message id="ID_Host_Option_ReportUrl">
        <source></source>
        <translation>보고서와 그 코드를 보낼 주소. --redact가 없으면 이름과 주소를 빼고 보냅니다.</translation>
    </message>
    <message id="ID_Host_Option_Results">
        <source></source>
        <translation>변경될 때마다 결과만 JSON으로 FILE에도 씁니다. -는 표준 출력이며 끝날 때 씁니다.</translation>
    </message>
    <message id="ID_Host_Option_Scenario">
        <source></source>
        <translation>시뮬레이션 장치의 동작: 파일 또는 all-well 같은 기본 제공 시나리오의 이름. --platform scripted도 지정한 것으로 봅니다.</translation>
    </message>
    <message id="ID_Host_Option_Server">
        <source></source>
        <translation>지연과 패킷 손실을 측정할 STUN 서버. stun:HOST:PORT로도 쓸 수 있습니다. 포트가 없으면 도메인의 DNS 레코드(_stun._udp)를 묻고, 없으면 3478입니다. ENVCHECK_SERVER나 설정 파일로도 지정할 수 있습니다. 서버가 없으면 이 컴퓨터가 응답하며 네트워크는 측정되지 않습니다.</translation>
    </message>
    <message id="ID_Host_Option_Tour">
        <source></source>
        <translation>모든 단계를 자동으로 진행하며 각 단계의 스크린샷을 FOLDER에 저장합니다.</translation>
    </message>
    <message id="ID_Host_Option_Unattended">
        <source></source>
        <translation>창과 사람 없이 측정합니다. --json 파일(-은 표준 출력)로 보고서를 씁니다. 종료 코드: 0 작동함, 1 조치 필요, 69 서비스 또는 서버가 없음.</translation>
    </message>
    <message id="ID_Host_Option_Verbose">
        <source></source>
        <translation>로그를 터미널에도 씁니다.</translation>
    </message>
    <message id="ID_Host_Option_Version">
        <source></source>
        <translation>버전을 표시합니다.</translation>
    </message>
    <message id="ID_Host_Outcome_BrokenOff">
        <source></source>
        <translation>무인 실행: 모두 측정하기 전에 종료됨</translation>
    </message>
    <message id="ID_Host_Outcome_Failed">
        <source></source>
        <translation>문제가 있는 상태로 완료</translation>
    </message>
    <message id="ID_Host_Outcome_Faulty">
        <source></source>
        <translation>무인 실행: 조치가 필요한 항목이 있음</translation>
    </message>
    <message id="ID_Host_Outcome_LeftEarly">
        <source></source>
        <translation>중간에 나감</translation>
    </message>
    <message id="ID_Host_Outcome_Passed">
        <source></source>
        <translation>모두 정상</translation>
    </message>
    <message id="ID_Host_Outcome_PutOut">
        <source></source>
        <translation>교실에서 세션을 종료함</translation>
    </message>
    <message id="ID_Host_Outcome_Unavailable">
        <source></source>
        <translation>무인 실행: 서비스가 없어 모든 항목을 측정하지 못함</translation>
    </message>
    <message id="ID_Host_Outcome_Works">
        <source></source>
        <translation>무인 실행: 측정한 항목이 모두 작동함</translation>
    </message>
    <message id="ID_Host_OutputNotWritten">
        <source></source>
        <translation>출력을 쓸 수 없습니다. 디스크가 가득 찼는지 확인하세요</translation>
    </message>
    <message id="ID_Host_Reason_Absent">
        <source></source>
        <translation>장치가 없음</translation>
    </message>
    <message id="ID_Host_Reason_Busy">
        <source></source>
        <translation>다른 프로그램이 장치를 사용 중</translation>
    </message>
    <message id="ID_Host_Reason_Denied">
        <source></source>
        <translation>시스템이 접근을 거부함</translation>
    </message>
    <message id="ID_Host_Reason_Failed">
        <source></source>
        <translation>장치에 오류 발생</translation>
    </message>
    <message id="ID_Host_Reason_Hung">
        <source></source>
        <translation>장치가 응답하지 않음</translation>
    </message>
    <message id="ID_Host_Reason_Muted">
        <source></source>
        <translation>장치가 음소거됨</translation>
    </message>
    <message id="ID_Host_Reason_NoAnswer">
        <source></source>
        <translation>서버가 응답하지 않음</translation>
    </message>
    <message id="ID_Host_Reason_NoRoute">
        <source></source>
        <translation>서버로 가는 경로가 없습니다</translation>
    </message>
    <message id="ID_Host_Reason_NotBuilt">
        <source></source>
        <translation>이 시스템에서 지원되지 않음</translation>
    </message>
    <message id="ID_Host_Reason_NotOffered">
        <source></source>
        <translation>이 엔진은 할 수 없음</translation>
    </message>
    <message id="ID_Host_Reason_NotRecorded">
        <source></source>
        <translation>엔진이 기록하지 않음</translation>
    </message>
    <message id="ID_Host_Reason_Off">
        <source></source>
        <translation>장치가 꺼져 있음</translation>
    </message>
    <message id="ID_Host_Reason_Refused">
        <source></source>
        <translation>서버가 거부했습니다</translation>
    </message>
    <message id="ID_Host_Reason_Scripted">
        <source></source>
        <translation>시뮬레이션 장치에는 이 값이 없음</translation>
    </message>
    <message id="ID_Host_Reason_ServerLost">
        <source></source>
        <translation>소리 서비스가 실행되고 있지 않음</translation>
    </message>
    <message id="ID_Host_Reason_ServerSilent">
        <source></source>
        <translation>소리 서비스가 응답하지 않음</translation>
    </message>
    <message id="ID_Host_Reason_Silent">
        <source></source>
        <translation>장치에서 아무것도 오지 않음</translation>
    </message>
    <message id="ID_Host_Reason_StepNotOpened">
        <source></source>
        <translation>이 단계를 열지 않음</translation>
    </message>
    <message id="ID_Host_Reason_Unreadable">
        <source></source>
        <translation>카메라가 표시할 수 있는 형식을 보내지 않음</translation>
    </message>
    <message id="ID_Host_Reason_VolumeZero">
        <source></source>
        <translation>볼륨이 0임</translation>
    </message>
    <message id="ID_Host_Redacted_Hash">
        <source></source>
        <translation>주소, 이름, 계정은 짧은 코드로 바뀌었습니다.</translation>
    </message>
    <message id="ID_Host_Redacted_Personal">
        <source></source>
        <translation>주소, 이름, 계정은 제외되었습니다.</translation>
    </message>
    <message id="ID_Host_Remedy_Clipping">
        <source></source>
        <translation>마이크 소리가 너무 커서 찢어지니 마이크 음량을 낮추세요.</translation>
    </message>
    <message id="ID_Host_Remedy_Hum">
        <source></source>
        <translation>마이크에서 웅 하는 소리가 나니 다른 단자나 케이블을 사용해 보고 전원 장치에서 멀리 두세요.</translation>
    </message>
    <message id="ID_Host_Remedy_LoopNotHeard">
        <source></source>
        <translation>마이크가 스피커 소리를 듣지 못했으니 둘 다 볼륨을 높이고 같은 헤드셋이나 같은 방에 있는지 확인하세요.</translation>
    </message>
    <message id="ID_Host_Remedy_ServerSilent">
        <source></source>
        <translation>시스템의 영상 및 소리 서비스가 응답하지 않았으니 로그아웃했다가 다시 로그인하거나 컴퓨터를 다시 시작하세요.</translation>
    </message>
    <message id="ID_Host_ReportIsIn">
        <source></source>
        <translation>보고서 위치: %1</translation>
    </message>
    <message id="ID_Host_Report_Answer">
        <source></source>
        <translation>답변</translation>
    </message>
    <message id="ID_Host_Report_BadTime">
        <source></source>
        <translation>2026-03-01T08:30:00Z와 같은 시각이어야 합니다</translation>
    </message>
    <message id="ID_Host_Report_Causes">
        <source></source>
        <translation>원인</translation>
    </message>
    <message id="ID_Host_Report_Computer">
        <source></source>
        <translation>컴퓨터</translation>
    </message>
    <message id="ID_Host_Report_Contradiction">
        <source></source>
        <translation>모순</translation>
    </message>
    <message id="ID_Host_Report_Count">
        <source></source>
        <translation>보고서</translation>
    </message>
    <message id="ID_Host_Report_Device">
        <source></source>
        <translation>장치</translation>
    </message>
    <message id="ID_Host_Report_Id">
        <source></source>
        <translation>보고서 번호</translation>
    </message>
    <message id="ID_Host_Report_Later">
        <source></source>
        <translation>이후 측정값</translation>
    </message>
    <message id="ID_Host_Report_Measurements">
        <source></source>
        <translation>측정값</translation>
    </message>
    <message id="ID_Host_Report_Notice">
        <source></source>
        <translation>참고</translation>
    </message>
    <message id="ID_Host_Report_OtherFormat">
        <source></source>
        <translation>점검 보고서가 아닙니다</translation>
    </message>
    <message id="ID_Host_Report_OtherVersion">
        <source></source>
        <translation>%1인데, 이 프로그램은 버전 %2을(를) 읽습니다</translation>
    </message>
    <message id="ID_Host_Report_Outcome">
        <source></source>
        <translation>결과</translation>
    </message>
    <message id="ID_Host_Report_Program">
        <source></source>
        <translation>프로그램</translation>
    </message>
    <message id="ID_Host_Report_Result">
        <source></source>
        <translation>판정</translation>
    </message>
    <message id="ID_Host_Report_RightSound">
        <source></source>
        <translation>맞는 소리 선택</translation>
    </message>
    <message id="ID_Host_Report_Scripted">
        <source></source>
        <translation>이 컴퓨터의 장치가 아니라 시뮬레이션 장치입니다.</translation>
    </message>
    <message id="ID_Host_Report_Summary">
        <source></source>
        <translation>요약</translation>
    </message>
    <message id="ID_Host_Report_System">
        <source></source>
        <translation>컴퓨터와 계정</translation>
    </message>
    <message id="ID_Host_Report_Time">
        <source></source>
        <translation>일시</translation>
    </message>
    <message id="ID_Host_Report_Title">
        <source></source>
        <translation>시스템 점검 보고서</translation>
    </message>
    <message id="ID_Host_Serve_Answering">
        <source></source>
        <translation>UDP 포트 %1에서 응답 중입니다. 다른 컴퓨터에서 --server stun:HOST:%1로 여기까지의 경로를 측정할 수 있습니다</translation>
    </message>
    <message id="ID_Host_Serve_NoPort">
        <source></source>
        <translation>UDP 포트 %1에서 응답할 수 없습니다(%2). --port로 다른 포트를 선택하세요</translation>
    </message>
    <message id="ID_Host_Serve_NotBuilt">
        <source></source>
        <translation>serve에는 실제 장치와 함께 빌드된 프로그램이 필요합니다(ENVCHECK_DEVICES)</translation>
    </message>
    <message id="ID_Host_State_Absent">
        <source></source>
        <translation>연결 안 됨</translation>
    </message>
    <message id="ID_Host_State_Busy">
        <source></source>
        <translation>사용 중</translation>
    </message>
    <message id="ID_Host_State_Denied">
        <source></source>
        <translation>접근 거부됨</translation>
    </message>
    <message id="ID_Host_State_Failed">
        <source></source>
        <translation>오류</translation>
    </message>
    <message id="ID_Host_State_Hung">
        <source></source>
        <translation>응답 없음</translation>
    </message>
    <message id="ID_Host_State_Off">
        <source></source>
        <translation>꺼짐</translation>
    </message>
    <message id="ID_Host_State_Ready">
        <source></source>
        <translation>준비됨</translation>
    </message>
    <message id="ID_Host_State_Silent">
        <source></source>
        <translation>신호 없음</translation>
    </message>
    <message id="ID_Host_State_Working">
        <source></source>
        <translation>정상</translation>
    </message>
    <message id="ID_Host_Takes_Ending">
        <source></source>
        <translation>%1(으)로 끝나는 이름 또는 표준 출력을 뜻하는 -</translation>
    </message>
    <message id="ID_Host_Takes_FileEnding">
        <source></source>
        <translation>%1(으)로 끝나는 파일 이름</translation>
    </message>
    <message id="ID_Host_Takes_Number">
        <source></source>
        <translation>%1부터 %2까지의 숫자</translation>
    </message>
    <message id="ID_Host_Takes_OneOf">
        <source></source>
        <translation>다음 중 하나: %1</translation>
    </message>
    <message id="ID_Host_Takes_Server">
        <source></source>
        <translation>HOST 또는 HOST:PORT(앞에 stun:을 붙여도 됨. 예: stun:stun.example.org:3478)</translation>
    </message>
    <message id="ID_Host_Takes_WebAddress">
        <source></source>
        <translation>http 또는 https 주소</translation>
    </message>
    <message id="ID_Host_Token_NoToken">
        <source></source>
        <translation>%1: 토큰이 아닙니다. 글자, 숫자와 - . _ ~ + /(끝에는 =)로 된 한 줄이어야 합니다</translation>
    </message>
    <message id="ID_Host_Token_NotEncrypted">
        <source></source>
        <translation>%1: 토큰은 https로만 보냅니다. https 주소를 쓰거나 토큰을 빼세요</translation>
    </message>
    <message id="ID_Host_Token_NotRead">
        <source></source>
        <translation>%1: 읽을 수 없습니다(%2). 보고서 서버의 토큰이 든 파일을 지정하세요</translation>
    </message>
    <message id="ID_Host_Token_Open">
        <source></source>
        <translation>%1에 토큰이 있는데 모든 사용자가 읽거나 쓸 수 있습니다. 다음으로 바꾸세요: chmod o= %1</translation>
    </message>
    <message id="ID_Host_Tour_Done">
        <source></source>
        <translation>스크린샷 %1개를 %2에 저장했습니다. index.html에서 모두 볼 수 있습니다.</translation>
    </message>
    <message id="ID_Host_Tour_NoFolder">
        <source></source>
        <translation>--tour %1: 이 폴더를 만들 수 없습니다. 다른 폴더를 지정하세요</translation>
    </message>
    <message id="ID_Host_Tour_NotWritten">
        <source></source>
        <translation>%1: %2. 다른 폴더를 지정하세요</translation>
    </message>
    <message id="ID_Host_Upload_Kept">
        <source></source>
        <translation>보고서가 %1에 도착하지 않았습니다: %2. 보관해 두었다가 다음 실행 때 다시 보냅니다.</translation>
    </message>
    <message id="ID_Host_Upload_NoAnswer">
        <source></source>
        <translation>제시간에 응답이 없음</translation>
    </message>
    <message id="ID_Host_Upload_Refused">
        <source></source>
        <translation>%1에서 보고서를 받지 않습니다: %2. 다시 보내지 않습니다.</translation>
    </message>
    <message id="ID_Host_Upload_Sending">
        <source></source>
        <translation>보고서를 %1(으)로 보내는 중…</translation>
    </message>
    <message id="ID_Host_Upload_WrongToken">
        <source></source>
        <translation>토큰이 없거나 틀림(HTTP %1)</translation>
    </message>
    <message id="ID_Host_Usage_EmptyName">
        <source></source>
        <translation>--%1에는 비어 있지 않은 이름이 필요합니다</translation>
    </message>
    <message id="ID_Host_Usage_ExtraArgument">
        <source></source>
        <translation>‘%1’은(는) 필요 없는 인수입니다. --help를 참고하세요</translation>
    </message>
    <message id="ID_Host_Usage_LeaveOneOut">
        <source></source>
        <translation>%1과(와) %2은(는) 함께 쓸 수 없습니다. 하나를 빼세요</translation>
    </message>
    <message id="ID_Host_Usage_Needs">
        <source></source>
        <translation>--%1에는 --%2이(가) 필요합니다. 추가하거나 --%1을(를) 빼세요</translation>
    </message>
    <message id="ID_Host_Usage_OtherCommand">
        <source></source>
        <translation>--%1은(는) %2에 쓸 수 없습니다. --help를 참고하세요</translation>
    </message>
    <message id="ID_Host_Usage_SamePlace">
        <source></source>
        <translation>--%1과 --%2이(가) 같은 곳(%3)에 씁니다. 서로 다른 곳을 지정하세요</translation>
    </message>
    <message id="ID_Host_Usage_SeeHelp">
        <source></source>
        <translation>%1 --help를 참고하세요.</translation>
    </message>
    <message id="ID_Host_Usage_Takes">
        <source></source>
        <translation>--%1 %2: 사용할 수 있는 값은 %3</translation>
    </message>
    <message id="ID_Host_Usage_TheCheck">
        <source></source>
        <translation>점검</translation>
    </message>
    <message id="ID_Host_Usage_UnknownCommand">
        <source></source>
        <translation>알 수 없는 명령 ‘%1’. --help를 참고하세요</translation>
    </message>
    <message id="ID_Host_Verdict_Faulty">
        <source></source>
        <translation>조치 필요</translation>
    </message>
    <message id="ID_Host_Verdict_Heard">
        <source></source>
        <translation>들림</translation>
    </message>
    <message id="ID_Host_Verdict_NotHeard">
        <source></source>
        <translation>들리지 않음</translation>
    </message>
    <message id="ID_Host_Verdict_NotTried">
        <source></source>
        <translation>시도 안 함</translation>
    </message>
    <message id="ID_Host_Verdict_Unmeasured">
        <source></source>
        <translation>측정 안 됨</translation>
    </message>
    <message id="ID_Host_Verdict_Works">
        <source></source>
        <translation>작동함</translation>
    </message>
    <message id="ID_Host_Yes">
        <source></source>
        <translation>네</translation>
    </message>
    <message id="ID_Kestrel_SystemTesting">
        <source></source>
        <translation>시스템 점검</translation>
    </message>
    <message id="ID_MessageBox_Critical">
        <source></source>
        <translation>오류</translation>
    </message>
    <message id="ID_MessageBox_Information">
        <source></source>
        <translation>알림</translation>
    </message>
    <message id="ID_MessageBox_Question">
        <source></source>
        <translation>확인</translation>
    </message>
    <message id="ID_MessageBox_Warning">
        <source></source>
        <translation>경고</translation>
    </message>
    <message id="ID_Microphone">
        <source></source>
        <translation>마이크:</translation>
    </message>
    <message id="ID_MicrophonePage_2">
        <source></source>
        <translation>2. 스위치나 음소거 키를 확인해 마이크 음소거를 푸세요.</translation>
    </message>
    <message id="ID_MicrophonePage_3">
        <source></source>
        <translation>3. 볼륨을 높이고 마이크 가까이에서 말하세요.</translation>
    </message>
    <message id="ID_MicrophonePage_4">
        <source></source>
        <translation>4. 시스템의 개인 정보 설정에서 마이크를 허용하세요.</translation>
    </message>
    <message id="ID_MicrophonePage_Again">
        <source></source>
        <translation>다시</translation>
    </message>
    <message id="ID_MicrophonePage_CanHearOrSee">
        <source></source>
        <translation>네, 들리고 보여요</translation>
    </message>
    <message id="ID_MicrophonePage_CanNotHearOrSee">
        <source></source>
        <translation>안 들리거나 안 보여요</translation>
    </message>
    <message id="ID_MicrophonePage_ChoseNo">
        <source></source>
        <translation>목소리나 막대가 확인되지 않습니다</translation>
    </message>
    <message id="ID_MicrophonePage_ClickHere">
        <source></source>
        <translation>소리나 막대에 문제가 있나요? 여기를 클릭하세요</translation>
    </message>
    <message id="ID_MicrophonePage_DisabledWillMakeMicrophoneUnusable">
        <source></source>
        <translation>마이크가 꺼져 있습니다. 여기서 선택하거나 켜 주세요.</translation>
    </message>
    <message id="ID_MicrophonePage_MayNoisy">
        <source></source>
        <translation>100을 넘으면 잡음이 생길 수 있습니다.</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneDisabled">
        <source></source>
        <translation>마이크가 꺼져 있습니다</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneTest">
        <source></source>
        <translation>“녹음”을 누르고 1부터 10까지 소리 내어 세어 보세요. 내 목소리가 들리고 녹색 막대가 움직이는지 확인하세요.</translation>
    </message>
    <message id="ID_MicrophonePage_NoMicrophoneWasDetected">
        <source></source>
        <translation>마이크를 찾을 수 없습니다</translation>
    </message>
    <message id="ID_MicrophonePage_NoVoiceWasRecorded">
        <source></source>
        <translation>마이크에 소리가 들어오지 않습니다</translation>
    </message>
    <message id="ID_MicrophonePage_OfS">
        <source></source>
        <translation>%1초</translation>
    </message>
    <message id="ID_MicrophonePage_Recording">
        <source></source>
        <translation>말하세요</translation>
    </message>
    <message id="ID_Microphone_Check">
        <source></source>
        <translation>마이크</translation>
    </message>
    <message id="ID_NetworkPage_1">
        <source></source>
        <translation>1. 무선 공유기에 가까이 가거나 유선 랜을 사용하세요.</translation>
    </message>
    <message id="ID_NetworkPage_2">
        <source></source>
        <translation>2. 다른 기기를 포함해 다운로드와 동영상을 중지하세요.</translation>
    </message>
    <message id="ID_NetworkPage_3">
        <source></source>
        <translation>3. VPN과 프록시를 끄거나 공유기를 다시 시작하세요.</translation>
    </message>
    <message id="ID_NetworkPage_Account">
        <source></source>
        <translation>계정:</translation>
    </message>
    <message id="ID_NetworkPage_AvailableCacheSpace">
        <source></source>
        <translation>캐시 여유 공간:</translation>
    </message>
    <message id="ID_NetworkPage_CPU">
        <source></source>
        <translation>프로세서:</translation>
    </message>
    <message id="ID_NetworkPage_ClickHere">
        <source></source>
        <translation>네트워크가 느리거나 불안정한가요? 여기를 클릭하세요</translation>
    </message>
    <message id="ID_NetworkPage_Client">
        <source></source>
        <translation>클라이언트:</translation>
    </message>
    <message id="ID_NetworkPage_LostRate">
        <source></source>
        <translation>패킷 손실률:</translation>
    </message>
    <message id="ID_NetworkPage_NetworkDelay">
        <source></source>
        <translation>네트워크 지연:</translation>
    </message>
    <message id="ID_NetworkPage_NetworkSlowOrUnstable">
        <source></source>
        <translation>네트워크가 느리거나 불안정합니다</translation>
    </message>
    <message id="ID_NetworkPage_OS">
        <source></source>
        <translation>운영 체제:</translation>
    </message>
    <message id="ID_NewLogin_Server">
        <source></source>
        <translation>서버:</translation>
    </message>
    <message id="ID_Next">
        <source></source>
        <translation>다음</translation>
    </message>
    <message id="ID_Nickname_NetworkPage">
        <source></source>
        <translation>닉네임:</translation>
    </message>
    <message id="ID_OK">
        <source></source>
        <translation>완료</translation>
    </message>
    <message id="ID_Record">
        <source></source>
        <translation>녹음</translation>
    </message>
    <message id="ID_Skip">
        <source></source>
        <translation>건너뛰기</translation>
    </message>
    <message id="ID_Volume">
        <source></source>
        <translation>볼륨:</translation>
    </message>
    <message id="ID_WelcomePage_StartTest">
        <source></source>
        <translation>점검 시작</translation>
    </message>
    <message id="ID_WelcomePage_Welcome">
        <source></source>
        <translation>온라인 교실에 오신 것을 환영합니다</translation>
    </message>
    <message id="ID_hardwaremgrinterface_NoSpeakerFound">
        <source></source>
        <translation>스피커를 찾을 수 없습니다</translation>
    </message>
    <message id="ID_lumcamera_NoWebcamFound">
        <source></source>
        <translation>카메라를 찾을 수 없습니다</translation>
    </message>
    <message id="ID_Host_Reason_NoServer">
        <source></source>
        <translation>서버 없음</translation>
    </message>
    <message id="ID_Host_Reason_NoSuchHost">
        <source></source>
        <translation>서버 이름을 찾을 수 없음</translation>
    </message>
    <message id="ID_Host_Remedy">
        <source></source>
        <translation>해결 방법</translation>
    </message>
    <message id="ID_Host_Remedy_NoServer">
        <source></source>
        <translation>서버가 설정되지 않아 이 컴퓨터만 측정했으니 학교에 서버를 문의해 --server 또는 설정 파일로 지정하세요.</translation>
    </message>
    <message id="ID_Host_Remedy_NoAnswer">
        <source></source>
        <translation>서버가 응답하지 않았으니 인터넷 연결과 방화벽의 UDP 차단 여부를 확인하세요.</translation>
    </message>
    <message id="ID_Host_Remedy_NoSuchHost">
        <source></source>
        <translation>서버 이름을 찾을 수 없으니 철자와 인터넷 연결을 확인하세요.</translation>
    </message>
    <message id="ID_Host_Remedy_Slow">
        <source></source>
        <translation>연결이 느리니 유선 랜을 사용하거나 무선 공유기에 가까이 가고, 다운로드와 다른 통화를 중지하세요.</translation>
    </message>
    <message id="ID_Host_Remedy_Lossy">
        <source></source>
        <translation>전송 중에 손실되는 데이터가 너무 많으니 유선 랜을 사용하거나 무선 공유기에 가까이 가세요.</translation>
    </message>
    <message id="ID_Host_Remedy_LeftTooSoon">
        <source></source>
        <translation>측정되기 전에 이 단계를 떠났으니 값이 나타날 때까지 기다리세요.</translation>
    </message>
    <message id="ID_Host_Remedy_Absent">
        <source></source>
        <translation>장치를 찾을 수 없으니 장치를 연결하거나 켠 뒤 다시 점검하세요.</translation>
    </message>
    <message id="ID_Host_Remedy_Off">
        <source></source>
        <translation>목록에서 장치가 꺼져 있으니 목록에서 장치를 선택하세요.</translation>
    </message>
    <message id="ID_Host_Remedy_Starting">
        <source></source>
        <translation>장치가 아직 시작 중이었으니 조금 더 기다린 뒤 답하세요.</translation>
    </message>
    <message id="ID_Host_Remedy_Busy">
        <source></source>
        <translation>다른 프로그램이 장치를 사용 중이니 그 프로그램을 닫고 다시 점검하세요.</translation>
    </message>
    <message id="ID_Host_Remedy_Denied">
        <source></source>
        <translation>시스템이 장치 사용을 막고 있으니 개인 정보 설정에서 허용하세요.</translation>
    </message>
    <message id="ID_Host_Remedy_Hung">
        <source></source>
        <translation>장치가 응답하지 않았으니 뺐다가 다시 연결하거나 컴퓨터를 다시 시작하세요.</translation>
    </message>
    <message id="ID_Host_Remedy_Stalled">
        <source></source>
        <translation>카메라가 화면을 보내지 않았으니 뺐다가 다시 연결하거나 다른 카메라를 선택하세요.</translation>
    </message>
    <message id="ID_Host_Remedy_Black">
        <source></source>
        <translation>화면이 검게 나왔으니 렌즈 덮개를 열고 조명을 켜세요.</translation>
    </message>
    <message id="ID_Host_Remedy_Frozen">
        <source></source>
        <translation>화면이 움직이지 않았으니 카메라를 뺐다가 다시 연결하세요.</translation>
    </message>
    <message id="ID_Host_Remedy_Unplugged">
        <source></source>
        <translation>점검 중에 장치가 빠졌으니 다시 연결하고 케이블을 확인하세요.</translation>
    </message>
    <message id="ID_Host_Remedy_NotBuilt">
        <source></source>
        <translation>이 프로그램은 이 시스템에서 이런 장치를 사용할 수 없으므로 다른 프로그램에서 확인해 보세요.</translation>
    </message>
    <message id="ID_Host_Remedy_ServerLost">
        <source></source>
        <translation>시스템의 영상 및 소리 서비스가 중지되었으니 로그아웃했다가 다시 로그인하거나 컴퓨터를 다시 시작하세요.</translation>
    </message>
    <message id="ID_Host_Remedy_Failed">
        <source></source>
        <translation>장치에 문제가 생겼으니 다시 연결하거나 다른 장치를 사용해 보세요.</translation>
    </message>
    <message id="ID_Host_Remedy_Unreadable">
        <source></source>
        <translation>카메라가 여기에서 표시할 수 있는 형식을 보내지 않습니다. 다른 카메라를 선택하거나 카메라 설정에서 다른 형식을 선택하세요.</translation>
    </message>
    <message id="ID_Host_Remedy_Silent">
        <source></source>
        <translation>마이크에 아무것도 녹음되지 않았으니 더 가까이에서 말하거나, 마이크 스위치를 확인하거나, 목록에서 다른 마이크를 선택하세요.</translation>
    </message>
    <message id="ID_Host_Remedy_Muted">
        <source></source>
        <translation>장치가 음소거되어 있으니 음소거를 푸세요.</translation>
    </message>
    <message id="ID_Host_Remedy_VolumeZero">
        <source></source>
        <translation>볼륨이 0이니 볼륨을 높이세요.</translation>
    </message>
    <message id="ID_Host_Remedy_WrongSound">
        <source></source>
        <translation>재생된 소리와 다른 소리를 선택했으니 볼륨을 높이고 다시 들어 보세요.</translation>
    </message>
    <message id="ID_Host_Remedy_NotSeen">
        <source></source>
        <translation>카메라가 화면을 보냈지만 내 모습이 보이지 않았으니 어떤 카메라가 선택되었는지 확인하세요.</translation>
    </message>
    <message id="ID_Host_Remedy_NotHeard">
        <source></source>
        <translation>소리가 재생되었지만 들리지 않았으니 볼륨을 높이고 어떤 스피커가 선택되었는지 확인하세요.</translation>
    </message>
    <message id="ID_Host_Remedy_SelfNotHeard">
        <source></source>
        <translation>마이크에 소리가 녹음되었지만 내 목소리가 들리지 않았으니 볼륨을 높이고 어떤 스피커가 선택되었는지 확인하세요.</translation>
    </message>
    <message id="ID_Host_Window_Title">
        <source></source>
        <translation>점검 결과</translation>
    </message>
    <message id="ID_Host_Window_Copy">
        <source></source>
        <translation>복사</translation>
    </message>
    <message id="ID_Host_Window_Save">
        <source></source>
        <translation>저장…</translation>
    </message>
    <message id="ID_Host_Window_Open">
        <source></source>
        <translation>보고서 열기</translation>
    </message>
    <message id="ID_Host_Window_Close">
        <source></source>
        <translation>닫기</translation>
    </message>
    <message id="ID_Host_Window_Copied">
        <source></source>
        <translation>보고서를 복사했습니다. 이 창을 닫기 전에 붙여 넣으세요.</translation>
    </message>
    <message id="ID_Host_Window_Saved">
        <source></source>
        <translation>보고서를 저장했습니다: %1</translation>
    </message>
    <message id="ID_Host_Window_NotWritten">
        <source></source>
        <translation>보고서를 %1에 쓸 수 없습니다. 다른 위치를 선택하세요.</translation>
    </message>
    <message id="ID_Host_Window_NotOpened">
        <source></source>
        <translation>보고서를 열 수 있는 프로그램이 없습니다. 위치: %1</translation>
    </message>
</context>
</TS>
