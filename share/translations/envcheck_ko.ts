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
        <translation>보이지 않아요</translation>
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
        <translation>아직 응답하지 않은 항목입니다</translation>
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
    <message id="ID_Host_Figure_Answered">
        <source></source>
        <translation>응답된 탐침</translation>
    </message>
    <message id="ID_Host_Figure_Bandwidth">
        <source></source>
        <translation>감지된 최고 주파수</translation>
    </message>
    <message id="ID_Host_Figure_Black">
        <source></source>
        <translation>검은 화면 비율</translation>
    </message>
    <message id="ID_Host_Figure_Brightness">
        <source></source>
        <translation>밝기</translation>
    </message>
    <message id="ID_Host_Figure_Clipped">
        <source></source>
        <translation>잘린 소리</translation>
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
        <translation>첫 화면까지 걸린 시간</translation>
    </message>
    <message id="ID_Host_Figure_Frozen">
        <source></source>
        <translation>멈춘 화면 비율</translation>
    </message>
    <message id="ID_Host_Figure_Height">
        <source></source>
        <translation>화면 높이</translation>
    </message>
    <message id="ID_Host_Figure_HumFrequency">
        <source></source>
        <translation>전원 잡음 주파수</translation>
    </message>
    <message id="ID_Host_Figure_HumShare">
        <source></source>
        <translation>잡음 속 전원 험</translation>
    </message>
    <message id="ID_Host_Figure_Jitter">
        <source></source>
        <translation>지터</translation>
    </message>
    <message id="ID_Host_Figure_Loss">
        <source></source>
        <translation>패킷 손실</translation>
    </message>
    <message id="ID_Host_Figure_MovedByUser">
        <source></source>
        <translation>사용자가 음량을 조절함</translation>
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
        <translation>최대 소리</translation>
    </message>
    <message id="ID_Host_Figure_Pictures">
        <source></source>
        <translation>화면 수</translation>
    </message>
    <message id="ID_Host_Figure_Rate">
        <source></source>
        <translation>화면 빈도</translation>
    </message>
    <message id="ID_Host_Figure_Seconds">
        <source></source>
        <translation>측정 시간</translation>
    </message>
    <message id="ID_Host_Figure_Sent">
        <source></source>
        <translation>보낸 탐침</translation>
    </message>
    <message id="ID_Host_Figure_SoundHeard">
        <source></source>
        <translation>소리 감지됨</translation>
    </message>
    <message id="ID_Host_Figure_SoundPlayed">
        <source></source>
        <translation>재생한 소리</translation>
    </message>
    <message id="ID_Host_Figure_VolumeAfter">
        <source></source>
        <translation>이후 음량</translation>
    </message>
    <message id="ID_Host_Figure_VolumeBefore">
        <source></source>
        <translation>이전 음량</translation>
    </message>
    <message id="ID_Host_Figure_Width">
        <source></source>
        <translation>화면 너비</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodPicture">
        <source></source>
        <translation>‘아니요’라고 답했지만 움직이는 화면이 들어왔습니다.</translation>
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
        <translation>검은 화면인데 ‘예’라고 답했습니다.</translation>
    </message>
    <message id="ID_Host_Flag_YesToFrozenPicture">
        <source></source>
        <translation>멈춘 화면인데 ‘예’라고 답했습니다.</translation>
    </message>
    <message id="ID_Host_Flag_YesToMutedSpeaker">
        <source></source>
        <translation>스피커가 음소거인데 ‘예’라고 답했습니다.</translation>
    </message>
    <message id="ID_Host_Flag_YesToSilence">
        <source></source>
        <translation>‘예’라고 답했지만 마이크에 아무 소리도 없었습니다.</translation>
    </message>
    <message id="ID_Host_Flag_YesToWrongSound">
        <source></source>
        <translation>‘예’라고 답했지만 맞는 소리를 고르지 못했습니다.</translation>
    </message>
    <message id="ID_Host_Flag_YesWithoutPictures">
        <source></source>
        <translation>‘예’라고 답했지만 화면이 들어오지 않았습니다.</translation>
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
    <message id="ID_Host_LastGoodRun">
        <source></source>
        <translation>마지막 정상 실행</translation>
    </message>
    <message id="ID_Host_LastGoodRun_None">
        <source></source>
        <translation>이전에 모두 통과한 실행이 없습니다.</translation>
    </message>
    <message id="ID_Host_MeasuringFailed">
        <source></source>
        <translation>측정 실패: %1</translation>
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
    <message id="ID_Host_Outcome_Failed">
        <source></source>
        <translation>문제가 있는 채로 완료</translation>
    </message>
    <message id="ID_Host_Outcome_LeftEarly">
        <source></source>
        <translation>중간에 나감</translation>
    </message>
    <message id="ID_Host_Outcome_Passed">
        <source></source>
        <translation>모두 통과</translation>
    </message>
    <message id="ID_Host_Outcome_PutOut">
        <source></source>
        <translation>강의실에서 세션을 종료함</translation>
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
    <message id="ID_Host_Reason_NoAnswer">
        <source></source>
        <translation>서버가 응답하지 않음</translation>
    </message>
    <message id="ID_Host_Reason_NotRecorded">
        <source></source>
        <translation>엔진이 기록하지 않음</translation>
    </message>
    <message id="ID_Host_Reason_Off">
        <source></source>
        <translation>장치가 꺼져 있음</translation>
    </message>
    <message id="ID_Host_Reason_Scripted">
        <source></source>
        <translation>각본에 따른 장치에는 이 값이 없음</translation>
    </message>
    <message id="ID_Host_Reason_Silent">
        <source></source>
        <translation>장치에서 아무것도 오지 않음</translation>
    </message>
    <message id="ID_Host_Reason_StepNotOpened">
        <source></source>
        <translation>이 단계를 열지 않음</translation>
    </message>
    <message id="ID_Host_Redacted_Hash">
        <source></source>
        <translation>주소, 이름, 계정은 짧은 코드로 바뀌었습니다.</translation>
    </message>
    <message id="ID_Host_Redacted_Personal">
        <source></source>
        <translation>주소, 이름, 계정은 제외되었습니다.</translation>
    </message>
    <message id="ID_Host_ReportIsIn">
        <source></source>
        <translation>보고서 위치: %1</translation>
    </message>
    <message id="ID_Host_Report_Answer">
        <source></source>
        <translation>답변</translation>
    </message>
    <message id="ID_Host_Report_Contradiction">
        <source></source>
        <translation>모순</translation>
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
        <translation>이 컴퓨터가 아닌 각본에 따른 장치입니다.</translation>
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
        <translation>시간</translation>
    </message>
    <message id="ID_Host_Report_Title">
        <source></source>
        <translation>시스템 점검 보고서</translation>
    </message>
    <message id="ID_Host_Yes">
        <source></source>
        <translation>예</translation>
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
    <message id="ID_Host_Remedy_ServerLost">
        <source></source>
        <translation>시스템의 영상 및 소리 서비스가 중지되었으니 로그아웃했다가 다시 로그인하거나 컴퓨터를 다시 시작하세요.</translation>
    </message>
    <message id="ID_Host_Remedy_Failed">
        <source></source>
        <translation>장치에 문제가 생겼으니 다시 연결하거나 다른 장치를 사용해 보세요.</translation>
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
