<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name></name>
    <message id="ID_CameraPage_1">
        <source></source>
        <translation>1. 請確認裝置已接好，並已在清單中選取。</translation>
    </message>
    <message id="ID_CameraPage_2">
        <source></source>
        <translation>2. 請關閉正在使用攝影機的其他程式。</translation>
    </message>
    <message id="ID_CameraPage_3">
        <source></source>
        <translation>3. 請打開鏡頭蓋，或用按鍵開啟攝影機。</translation>
    </message>
    <message id="ID_CameraPage_4">
        <source></source>
        <translation>4. 請在系統的隱私權設定中允許使用攝影機。</translation>
    </message>
    <message id="ID_CameraPage_5">
        <source></source>
        <translation>5. 請重新啟動電腦，或換用其他裝置。</translation>
    </message>
    <message id="ID_CameraPage_Camera">
        <source></source>
        <translation>攝影機：</translation>
    </message>
    <message id="ID_CameraPage_CameraDisabled">
        <source></source>
        <translation>攝影機已關閉或停用</translation>
    </message>
    <message id="ID_CameraPage_CannotSee">
        <source></source>
        <translation>否，看不到</translation>
    </message>
    <message id="ID_CameraPage_ClickHere">
        <source></source>
        <translation>看不到自己？請按這裡</translation>
    </message>
    <message id="ID_CameraPage_DisabledWillMakeCameraUnusable">
        <source></source>
        <translation>攝影機已關閉，請在此選擇或將其啟用。</translation>
    </message>
    <message id="ID_CameraPage_No">
        <source></source>
        <translation>否，看不到</translation>
    </message>
    <message id="ID_CameraPage_NoCameraImageWasDetected">
        <source></source>
        <translation>攝影機沒有畫面</translation>
    </message>
    <message id="ID_CameraPage_NotDetected">
        <source></source>
        <translation>此項檢測尚未作答</translation>
    </message>
    <message id="ID_CameraPage_Yes">
        <source></source>
        <translation>是，看得到</translation>
    </message>
    <message id="ID_CameraPage_choseNo">
        <source></source>
        <translation>您看不到自己</translation>
    </message>
    <message id="ID_Camera_Check">
        <source></source>
        <translation>攝影機</translation>
    </message>
    <message id="ID_CheckResultPage_Abnormal">
        <source></source>
        <translation>異常</translation>
    </message>
    <message id="ID_CheckResultPage_CheckEquipmentAndRetest">
        <source></source>
        <translation>請檢查設備後重新檢測。</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentAbnormal">
        <source></source>
        <translation>部分設備有問題</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentNormal">
        <source></source>
        <translation>設備一切正常</translation>
    </message>
    <message id="ID_CheckResultPage_Headphone">
        <source></source>
        <translation>喇叭</translation>
    </message>
    <message id="ID_CheckResultPage_Normal">
        <source></source>
        <translation>正常</translation>
    </message>
    <message id="ID_CheckResultPage_OK">
        <source></source>
        <translation>檢測完成，可以上課了。</translation>
    </message>
    <message id="ID_CheckResultPage_Redetect">
        <source></source>
        <translation>重新檢測</translation>
    </message>
    <message id="ID_CheckResultPage_System">
        <source></source>
        <translation>系統</translation>
    </message>
    <message id="ID_ContentPage_NotFinishedIfLeave">
        <source></source>
        <translation>系統檢測尚未完成，確定要離開嗎？</translation>
    </message>
    <message id="ID_Engine_BuiltInResponder">
        <source></source>
        <translation>未測量：未設定伺服器</translation>
    </message>
    <message id="ID_Engine_NoCamera">
        <source></source>
        <translation>無攝影機</translation>
    </message>
    <message id="ID_Engine_NoMicrophone">
        <source></source>
        <translation>無麥克風</translation>
    </message>
    <message id="ID_Engine_NoSpeaker">
        <source></source>
        <translation>找不到喇叭</translation>
    </message>
    <message id="ID_Engine_NoSpeakerSelected">
        <source></source>
        <translation>未選擇喇叭</translation>
    </message>
    <message id="ID_Engine_NotConnected">
        <source></source>
        <translation>未連接</translation>
    </message>
    <message id="ID_HeadsetPage_2">
        <source></source>
        <translation>2. 請調高音量，並確認沒有靜音。</translation>
    </message>
    <message id="ID_HeadsetPage_3">
        <source></source>
        <translation>3. 請把插頭完全插入，或重新連接藍牙。</translation>
    </message>
    <message id="ID_HeadsetPage_4">
        <source></source>
        <translation>4. 請在系統的音效設定中選擇同一輸出裝置。</translation>
    </message>
    <message id="ID_HeadsetPage_Bubble">
        <source></source>
        <translation>氣泡</translation>
    </message>
    <message id="ID_HeadsetPage_CanHear">
        <source></source>
        <translation>是，聽得到</translation>
    </message>
    <message id="ID_HeadsetPage_CanNotHear">
        <source></source>
        <translation>否，聽不到</translation>
    </message>
    <message id="ID_HeadsetPage_ChoseWrong">
        <source></source>
        <translation>沒有選對聲音</translation>
    </message>
    <message id="ID_HeadsetPage_ClickHere">
        <source></source>
        <translation>聽不到聲音？請按這裡</translation>
    </message>
    <message id="ID_HeadsetPage_Doorbell">
        <source></source>
        <translation>門鈴</translation>
    </message>
    <message id="ID_HeadsetPage_Piano">
        <source></source>
        <translation>鋼琴</translation>
    </message>
    <message id="ID_HeadsetPage_Play">
        <source></source>
        <translation>播放</translation>
    </message>
    <message id="ID_HeadsetPage_PlayAgain">
        <source></source>
        <translation>重播</translation>
    </message>
    <message id="ID_HeadsetPage_Playing">
        <source></source>
        <translation>播放中</translation>
    </message>
    <message id="ID_HeadsetPage_PleaseSelectTheAnswer">
        <source></source>
        <translation>您聽到的是哪種聲音？</translation>
    </message>
    <message id="ID_HeadsetPage_Saxophone">
        <source></source>
        <translation>薩克斯風</translation>
    </message>
    <message id="ID_HeadsetPage_Seagull">
        <source></source>
        <translation>海鷗</translation>
    </message>
    <message id="ID_HeadsetPage_Shutter">
        <source></source>
        <translation>快門</translation>
    </message>
    <message id="ID_HeadsetPage_Speaker">
        <source></source>
        <translation>喇叭：</translation>
    </message>
    <message id="ID_HeadsetPage_Thunder">
        <source></source>
        <translation>雷聲</translation>
    </message>
    <message id="ID_HeadsetPage_Tip">
        <source></source>
        <translation>請按播放鈕，仔細聽，然後選擇您聽到的聲音。</translation>
    </message>
    <message id="ID_HeadsetPage_Typing">
        <source></source>
        <translation>打字</translation>
    </message>
    <message id="ID_HeadsetPage_choseNo">
        <source></source>
        <translation>您聽不到聲音</translation>
    </message>
    <message id="ID_HeadsetPage_play">
        <source></source>
        <translation>播放</translation>
    </message>
    <message id="ID_HeadsetPage_sound0">
        <source></source>
        <translation>聲音 1</translation>
    </message>
    <message id="ID_HeadsetPage_sound1">
        <source></source>
        <translation>聲音 2</translation>
    </message>
    <message id="ID_HeadsetPage_sound2">
        <source></source>
        <translation>聲音 3</translation>
    </message>
    <message id="ID_HeadsetPage_sound3">
        <source></source>
        <translation>聲音 4</translation>
    </message>
    <message id="ID_Host_Changes">
        <source></source>
        <translation>變更</translation>
    </message>
    <message id="ID_Host_Changes_None">
        <source></source>
        <translation>自那時起沒有變更。</translation>
    </message>
    <message id="ID_Host_Figure_Answered">
        <source></source>
        <translation>已回應的探測封包</translation>
    </message>
    <message id="ID_Host_Figure_Bandwidth">
        <source></source>
        <translation>可收到的最高頻率</translation>
    </message>
    <message id="ID_Host_Figure_Black">
        <source></source>
        <translation>全黑畫面</translation>
    </message>
    <message id="ID_Host_Figure_Brightness">
        <source></source>
        <translation>亮度</translation>
    </message>
    <message id="ID_Host_Figure_Clipped">
        <source></source>
        <translation>削波的聲音</translation>
    </message>
    <message id="ID_Host_Figure_DefaultAfter">
        <source></source>
        <translation>檢測後的預設裝置</translation>
    </message>
    <message id="ID_Host_Figure_DefaultBefore">
        <source></source>
        <translation>檢測前的預設裝置</translation>
    </message>
    <message id="ID_Host_Figure_Delay">
        <source></source>
        <translation>往返時間（中位數）</translation>
    </message>
    <message id="ID_Host_Figure_Delay5">
        <source></source>
        <translation>往返時間（第 5 百分位）</translation>
    </message>
    <message id="ID_Host_Figure_Delay95">
        <source></source>
        <translation>往返時間（第 95 百分位）</translation>
    </message>
    <message id="ID_Host_Figure_FirstPicture">
        <source></source>
        <translation>首個畫面所需時間</translation>
    </message>
    <message id="ID_Host_Figure_Frozen">
        <source></source>
        <translation>凍結畫面</translation>
    </message>
    <message id="ID_Host_Figure_Height">
        <source></source>
        <translation>畫面高度</translation>
    </message>
    <message id="ID_Host_Figure_HumFrequency">
        <source></source>
        <translation>電源嗡聲頻率</translation>
    </message>
    <message id="ID_Host_Figure_HumShare">
        <source></source>
        <translation>雜訊中的電源嗡聲</translation>
    </message>
    <message id="ID_Host_Figure_Jitter">
        <source></source>
        <translation>抖動</translation>
    </message>
    <message id="ID_Host_Figure_Loss">
        <source></source>
        <translation>封包遺失率</translation>
    </message>
    <message id="ID_Host_Figure_MovedByUser">
        <source></source>
        <translation>使用者調過音量</translation>
    </message>
    <message id="ID_Host_Figure_MutedAfter">
        <source></source>
        <translation>檢測後靜音</translation>
    </message>
    <message id="ID_Host_Figure_MutedBefore">
        <source></source>
        <translation>檢測前靜音</translation>
    </message>
    <message id="ID_Host_Figure_NoiseFloor">
        <source></source>
        <translation>底噪</translation>
    </message>
    <message id="ID_Host_Figure_OneWayDelay">
        <source></source>
        <translation>單向延遲（往返的一半）</translation>
    </message>
    <message id="ID_Host_Figure_Peak">
        <source></source>
        <translation>最大音量</translation>
    </message>
    <message id="ID_Host_Figure_Pictures">
        <source></source>
        <translation>畫面數</translation>
    </message>
    <message id="ID_Host_Figure_Rate">
        <source></source>
        <translation>影格率</translation>
    </message>
    <message id="ID_Host_Figure_Seconds">
        <source></source>
        <translation>測量時長</translation>
    </message>
    <message id="ID_Host_Figure_Sent">
        <source></source>
        <translation>已傳送的探測封包</translation>
    </message>
    <message id="ID_Host_Figure_SoundHeard">
        <source></source>
        <translation>收到聲音</translation>
    </message>
    <message id="ID_Host_Figure_SoundPlayed">
        <source></source>
        <translation>播放的聲音</translation>
    </message>
    <message id="ID_Host_Figure_VolumeAfter">
        <source></source>
        <translation>檢測後音量</translation>
    </message>
    <message id="ID_Host_Figure_VolumeBefore">
        <source></source>
        <translation>檢測前音量</translation>
    </message>
    <message id="ID_Host_Figure_Width">
        <source></source>
        <translation>畫面寬度</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodPicture">
        <source></source>
        <translation>回答「看不到」，但有動態畫面。</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodSound">
        <source></source>
        <translation>回答「聽不到」，但麥克風收到了聲音。</translation>
    </message>
    <message id="ID_Host_Flag_NoToRightSound">
        <source></source>
        <translation>回答「聽不到」，但選對了聲音。</translation>
    </message>
    <message id="ID_Host_Flag_YesToBlackPicture">
        <source></source>
        <translation>畫面全黑，卻回答「看得到」。</translation>
    </message>
    <message id="ID_Host_Flag_YesToFrozenPicture">
        <source></source>
        <translation>畫面凍結，卻回答「看得到」。</translation>
    </message>
    <message id="ID_Host_Flag_YesToMutedSpeaker">
        <source></source>
        <translation>喇叭已靜音，卻回答「聽得到」。</translation>
    </message>
    <message id="ID_Host_Flag_YesToSilence">
        <source></source>
        <translation>麥克風沒有收到聲音，卻回答「聽得到」。</translation>
    </message>
    <message id="ID_Host_Flag_YesToWrongSound">
        <source></source>
        <translation>回答「聽得到」，但沒有選對聲音。</translation>
    </message>
    <message id="ID_Host_Flag_YesWithoutPictures">
        <source></source>
        <translation>沒有畫面，卻回答「看得到」。</translation>
    </message>
    <message id="ID_Host_Grade">
        <source></source>
        <translation>網路品質</translation>
    </message>
    <message id="ID_Host_Grade_Fair">
        <source></source>
        <translation>普通</translation>
    </message>
    <message id="ID_Host_Grade_FairUpTo">
        <source></source>
        <translation>%1 以內為普通</translation>
    </message>
    <message id="ID_Host_Grade_Good">
        <source></source>
        <translation>良好</translation>
    </message>
    <message id="ID_Host_Grade_GoodUpTo">
        <source></source>
        <translation>%1 以內為良好</translation>
    </message>
    <message id="ID_Host_Grade_Poor">
        <source></source>
        <translation>不佳</translation>
    </message>
    <message id="ID_Host_LastGoodRun">
        <source></source>
        <translation>上次通過的檢測</translation>
    </message>
    <message id="ID_Host_LastGoodRun_None">
        <source></source>
        <translation>先前沒有全部通過的檢測。</translation>
    </message>
    <message id="ID_Host_MeasuringFailed">
        <source></source>
        <translation>測量失敗：%1</translation>
    </message>
    <message id="ID_Host_No">
        <source></source>
        <translation>否</translation>
    </message>
    <message id="ID_Host_NoAnswer">
        <source></source>
        <translation>未回答</translation>
    </message>
    <message id="ID_Host_NotMeasured">
        <source></source>
        <translation>未測量：%1</translation>
    </message>
    <message id="ID_Host_Outcome_Failed">
        <source></source>
        <translation>已完成，但有問題</translation>
    </message>
    <message id="ID_Host_Outcome_LeftEarly">
        <source></source>
        <translation>中途離開</translation>
    </message>
    <message id="ID_Host_Outcome_Passed">
        <source></source>
        <translation>全部通過</translation>
    </message>
    <message id="ID_Host_Outcome_PutOut">
        <source></source>
        <translation>工作階段被課堂終止</translation>
    </message>
    <message id="ID_Host_Reason_Absent">
        <source></source>
        <translation>沒有裝置</translation>
    </message>
    <message id="ID_Host_Reason_Busy">
        <source></source>
        <translation>裝置被其他程式佔用</translation>
    </message>
    <message id="ID_Host_Reason_Denied">
        <source></source>
        <translation>系統拒絕存取</translation>
    </message>
    <message id="ID_Host_Reason_Failed">
        <source></source>
        <translation>裝置發生故障</translation>
    </message>
    <message id="ID_Host_Reason_Hung">
        <source></source>
        <translation>裝置沒有回應</translation>
    </message>
    <message id="ID_Host_Reason_NoAnswer">
        <source></source>
        <translation>伺服器沒有回應</translation>
    </message>
    <message id="ID_Host_Reason_NotRecorded">
        <source></source>
        <translation>引擎不記錄此項</translation>
    </message>
    <message id="ID_Host_Reason_Off">
        <source></source>
        <translation>裝置已關閉</translation>
    </message>
    <message id="ID_Host_Reason_Scripted">
        <source></source>
        <translation>腳本模擬的裝置沒有此數值</translation>
    </message>
    <message id="ID_Host_Reason_Silent">
        <source></source>
        <translation>裝置沒有任何輸出</translation>
    </message>
    <message id="ID_Host_Reason_StepNotOpened">
        <source></source>
        <translation>未開啟此步驟</translation>
    </message>
    <message id="ID_Host_Redacted_Hash">
        <source></source>
        <translation>位址、名稱和帳號已替換為短代碼。</translation>
    </message>
    <message id="ID_Host_Redacted_Personal">
        <source></source>
        <translation>已移除位址、名稱和帳號。</translation>
    </message>
    <message id="ID_Host_ReportIsIn">
        <source></source>
        <translation>報告位於 %1</translation>
    </message>
    <message id="ID_Host_Report_Answer">
        <source></source>
        <translation>回答</translation>
    </message>
    <message id="ID_Host_Report_Contradiction">
        <source></source>
        <translation>矛盾</translation>
    </message>
    <message id="ID_Host_Report_Device">
        <source></source>
        <translation>裝置</translation>
    </message>
    <message id="ID_Host_Report_Id">
        <source></source>
        <translation>報告編號</translation>
    </message>
    <message id="ID_Host_Report_Later">
        <source></source>
        <translation>之後的測量值</translation>
    </message>
    <message id="ID_Host_Report_Measurements">
        <source></source>
        <translation>測量值</translation>
    </message>
    <message id="ID_Host_Report_Notice">
        <source></source>
        <translation>說明</translation>
    </message>
    <message id="ID_Host_Report_Outcome">
        <source></source>
        <translation>結果</translation>
    </message>
    <message id="ID_Host_Report_Program">
        <source></source>
        <translation>程式</translation>
    </message>
    <message id="ID_Host_Report_Result">
        <source></source>
        <translation>檢測結果</translation>
    </message>
    <message id="ID_Host_Report_RightSound">
        <source></source>
        <translation>選對聲音</translation>
    </message>
    <message id="ID_Host_Report_Scripted">
        <source></source>
        <translation>所用裝置為腳本模擬，並非本機裝置。</translation>
    </message>
    <message id="ID_Host_Report_Summary">
        <source></source>
        <translation>摘要</translation>
    </message>
    <message id="ID_Host_Report_System">
        <source></source>
        <translation>本機與帳號</translation>
    </message>
    <message id="ID_Host_Report_Time">
        <source></source>
        <translation>時間</translation>
    </message>
    <message id="ID_Host_Report_Title">
        <source></source>
        <translation>系統檢測報告</translation>
    </message>
    <message id="ID_Host_Yes">
        <source></source>
        <translation>是</translation>
    </message>
    <message id="ID_Kestrel_SystemTesting">
        <source></source>
        <translation>系統檢測</translation>
    </message>
    <message id="ID_MessageBox_Critical">
        <source></source>
        <translation>錯誤</translation>
    </message>
    <message id="ID_MessageBox_Information">
        <source></source>
        <translation>提示</translation>
    </message>
    <message id="ID_MessageBox_Question">
        <source></source>
        <translation>詢問</translation>
    </message>
    <message id="ID_MessageBox_Warning">
        <source></source>
        <translation>警告</translation>
    </message>
    <message id="ID_Microphone">
        <source></source>
        <translation>麥克風：</translation>
    </message>
    <message id="ID_MicrophonePage_2">
        <source></source>
        <translation>2. 請解除麥克風靜音：檢查開關或靜音鍵。</translation>
    </message>
    <message id="ID_MicrophonePage_3">
        <source></source>
        <translation>3. 請調高音量，並靠近麥克風說話。</translation>
    </message>
    <message id="ID_MicrophonePage_4">
        <source></source>
        <translation>4. 請在系統的隱私權設定中允許使用麥克風。</translation>
    </message>
    <message id="ID_MicrophonePage_Again">
        <source></source>
        <translation>重錄</translation>
    </message>
    <message id="ID_MicrophonePage_CanHearOrSee">
        <source></source>
        <translation>是，聽得到也看得到</translation>
    </message>
    <message id="ID_MicrophonePage_CanNotHearOrSee">
        <source></source>
        <translation>否，聽不到或看不到</translation>
    </message>
    <message id="ID_MicrophonePage_ChoseNo">
        <source></source>
        <translation>您聽不到或看不到自己的聲音</translation>
    </message>
    <message id="ID_MicrophonePage_ClickHere">
        <source></source>
        <translation>聽不到自己或音量條不動？請按這裡</translation>
    </message>
    <message id="ID_MicrophonePage_DisabledWillMakeMicrophoneUnusable">
        <source></source>
        <translation>麥克風已關閉，請在此選擇或將其啟用。</translation>
    </message>
    <message id="ID_MicrophonePage_MayNoisy">
        <source></source>
        <translation>音量超過 100 時可能產生雜音。</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneDisabled">
        <source></source>
        <translation>麥克風已關閉或停用</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneTest">
        <source></source>
        <translation>請按「錄音」，大聲從 1 數到 10，聽聽自己的聲音，並觀察綠色音量條是否跳動。</translation>
    </message>
    <message id="ID_MicrophonePage_NoMicrophoneWasDetected">
        <source></source>
        <translation>找不到麥克風</translation>
    </message>
    <message id="ID_MicrophonePage_NoVoiceWasRecorded">
        <source></source>
        <translation>麥克風沒有收到聲音</translation>
    </message>
    <message id="ID_MicrophonePage_OfS">
        <source></source>
        <translation>%1 秒</translation>
    </message>
    <message id="ID_MicrophonePage_Recording">
        <source></source>
        <translation>請說話</translation>
    </message>
    <message id="ID_Microphone_Check">
        <source></source>
        <translation>麥克風</translation>
    </message>
    <message id="ID_NetworkPage_1">
        <source></source>
        <translation>1. 請靠近無線路由器，或改用網路線連線。</translation>
    </message>
    <message id="ID_NetworkPage_2">
        <source></source>
        <translation>2. 請停止下載和播放影片，包括其他裝置上的。</translation>
    </message>
    <message id="ID_NetworkPage_3">
        <source></source>
        <translation>3. 請關閉 VPN 和 Proxy，或重新啟動路由器。</translation>
    </message>
    <message id="ID_NetworkPage_Account">
        <source></source>
        <translation>帳號：</translation>
    </message>
    <message id="ID_NetworkPage_AvailableCacheSpace">
        <source></source>
        <translation>可用快取空間：</translation>
    </message>
    <message id="ID_NetworkPage_CPU">
        <source></source>
        <translation>處理器：</translation>
    </message>
    <message id="ID_NetworkPage_ClickHere">
        <source></source>
        <translation>網路緩慢或不穩定？請按這裡</translation>
    </message>
    <message id="ID_NetworkPage_Client">
        <source></source>
        <translation>用戶端：</translation>
    </message>
    <message id="ID_NetworkPage_LostRate">
        <source></source>
        <translation>封包遺失率：</translation>
    </message>
    <message id="ID_NetworkPage_NetworkDelay">
        <source></source>
        <translation>網路延遲：</translation>
    </message>
    <message id="ID_NetworkPage_NetworkSlowOrUnstable">
        <source></source>
        <translation>網路緩慢或不穩定</translation>
    </message>
    <message id="ID_NetworkPage_OS">
        <source></source>
        <translation>作業系統：</translation>
    </message>
    <message id="ID_NewLogin_Server">
        <source></source>
        <translation>伺服器：</translation>
    </message>
    <message id="ID_Next">
        <source></source>
        <translation>下一步</translation>
    </message>
    <message id="ID_Nickname_NetworkPage">
        <source></source>
        <translation>暱稱：</translation>
    </message>
    <message id="ID_OK">
        <source></source>
        <translation>完成</translation>
    </message>
    <message id="ID_Record">
        <source></source>
        <translation>錄音</translation>
    </message>
    <message id="ID_Skip">
        <source></source>
        <translation>略過</translation>
    </message>
    <message id="ID_Volume">
        <source></source>
        <translation>音量：</translation>
    </message>
    <message id="ID_WelcomePage_StartTest">
        <source></source>
        <translation>開始檢測</translation>
    </message>
    <message id="ID_WelcomePage_Welcome">
        <source></source>
        <translation>歡迎來到線上教室</translation>
    </message>
    <message id="ID_hardwaremgrinterface_NoSpeakerFound">
        <source></source>
        <translation>找不到喇叭</translation>
    </message>
    <message id="ID_lumcamera_NoWebcamFound">
        <source></source>
        <translation>找不到攝影機</translation>
    </message>
    <message id="ID_Host_Reason_NoServer">
        <source></source>
        <translation>未設定伺服器</translation>
    </message>
    <message id="ID_Host_Reason_NoSuchHost">
        <source></source>
        <translation>找不到該伺服器名稱</translation>
    </message>
    <message id="ID_Host_Remedy">
        <source></source>
        <translation>解決方法</translation>
    </message>
    <message id="ID_Host_Remedy_NoServer">
        <source></source>
        <translation>由於未設定伺服器，只測量了本機，請向學校詢問伺服器，並用 --server 或在設定檔中設定。</translation>
    </message>
    <message id="ID_Host_Remedy_NoAnswer">
        <source></source>
        <translation>伺服器沒有回應，請確認已連上網路，且防火牆沒有封鎖 UDP。</translation>
    </message>
    <message id="ID_Host_Remedy_NoSuchHost">
        <source></source>
        <translation>找不到該伺服器名稱，請檢查拼寫，並確認已連上網路。</translation>
    </message>
    <message id="ID_Host_Remedy_Slow">
        <source></source>
        <translation>連線速度慢，請改用網路線或靠近無線路由器，並停止下載和其他通話。</translation>
    </message>
    <message id="ID_Host_Remedy_Lossy">
        <source></source>
        <translation>傳輸中遺失的資料過多，請改用網路線或靠近無線路由器。</translation>
    </message>
    <message id="ID_Host_Remedy_LeftTooSoon">
        <source></source>
        <translation>離開這一步時還沒有測到資料，請在該步驟等到數值出現。</translation>
    </message>
    <message id="ID_Host_Remedy_Absent">
        <source></source>
        <translation>找不到裝置，請接好或開啟裝置，然後重新檢測。</translation>
    </message>
    <message id="ID_Host_Remedy_Off">
        <source></source>
        <translation>裝置在清單中已關閉，請在清單中選擇一個裝置。</translation>
    </message>
    <message id="ID_Host_Remedy_Starting">
        <source></source>
        <translation>裝置當時仍在啟動，請多等一會兒再回答。</translation>
    </message>
    <message id="ID_Host_Remedy_Busy">
        <source></source>
        <translation>其他程式正在使用該裝置，請關閉那個程式後重新檢測。</translation>
    </message>
    <message id="ID_Host_Remedy_Denied">
        <source></source>
        <translation>系統拒絕存取該裝置，請在隱私權設定中允許。</translation>
    </message>
    <message id="ID_Host_Remedy_Hung">
        <source></source>
        <translation>裝置沒有回應，請重新插拔，或重新啟動電腦。</translation>
    </message>
    <message id="ID_Host_Remedy_Stalled">
        <source></source>
        <translation>攝影機沒有傳來畫面，請重新插拔，或選擇其他攝影機。</translation>
    </message>
    <message id="ID_Host_Remedy_Black">
        <source></source>
        <translation>畫面是黑的，請打開鏡頭蓋並開燈。</translation>
    </message>
    <message id="ID_Host_Remedy_Frozen">
        <source></source>
        <translation>畫面靜止不動，請重新插拔攝影機。</translation>
    </message>
    <message id="ID_Host_Remedy_Unplugged">
        <source></source>
        <translation>裝置在檢測過程中斷開了，請重新連接並檢查線材。</translation>
    </message>
    <message id="ID_Host_Remedy_ServerLost">
        <source></source>
        <translation>系統的影像和聲音服務已停止，請登出後重新登入，或重新啟動電腦。</translation>
    </message>
    <message id="ID_Host_Remedy_Failed">
        <source></source>
        <translation>裝置發生故障，請重新連接，或換一個裝置。</translation>
    </message>
    <message id="ID_Host_Remedy_Silent">
        <source></source>
        <translation>麥克風沒有錄到聲音，請靠近一些說話，檢查麥克風開關，或在清單中選擇其他麥克風。</translation>
    </message>
    <message id="ID_Host_Remedy_Muted">
        <source></source>
        <translation>裝置已靜音，請解除靜音。</translation>
    </message>
    <message id="ID_Host_Remedy_VolumeZero">
        <source></source>
        <translation>音量為 0，請調高音量。</translation>
    </message>
    <message id="ID_Host_Remedy_WrongSound">
        <source></source>
        <translation>您選擇的聲音與播放的不同，請調高音量後再聽一次。</translation>
    </message>
    <message id="ID_Host_Remedy_NotSeen">
        <source></source>
        <translation>攝影機傳來了畫面，但您沒有看到自己，請確認選取的是哪個攝影機。</translation>
    </message>
    <message id="ID_Host_Remedy_NotHeard">
        <source></source>
        <translation>聲音已播放，但您沒有聽到，請調高音量，並確認選取的是哪個喇叭。</translation>
    </message>
    <message id="ID_Host_Remedy_SelfNotHeard">
        <source></source>
        <translation>麥克風錄到了聲音，但您沒有聽到自己，請調高音量，並確認選取的是哪個喇叭。</translation>
    </message>
    <message id="ID_Host_Window_Title">
        <source></source>
        <translation>檢測結果</translation>
    </message>
    <message id="ID_Host_Window_Copy">
        <source></source>
        <translation>複製</translation>
    </message>
    <message id="ID_Host_Window_Save">
        <source></source>
        <translation>儲存…</translation>
    </message>
    <message id="ID_Host_Window_Open">
        <source></source>
        <translation>開啟報告</translation>
    </message>
    <message id="ID_Host_Window_Close">
        <source></source>
        <translation>關閉</translation>
    </message>
    <message id="ID_Host_Window_Copied">
        <source></source>
        <translation>報告已複製。請在關閉此視窗之前貼上。</translation>
    </message>
    <message id="ID_Host_Window_Saved">
        <source></source>
        <translation>報告已儲存到 %1</translation>
    </message>
    <message id="ID_Host_Window_NotWritten">
        <source></source>
        <translation>無法將報告寫入 %1。請選擇其他位置。</translation>
    </message>
    <message id="ID_Host_Window_NotOpened">
        <source></source>
        <translation>沒有程式能開啟報告。報告位於 %1</translation>
    </message>
</context>
</TS>
