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
        <translation>請檢查裝置後重新檢測。</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentAbnormal">
        <source></source>
        <translation>部分裝置有問題</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentNormal">
        <source></source>
        <translation>裝置一切正常</translation>
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
    <message id="ID_Engine_Camera_Absent">
        <source></source>
        <translation>找不到攝影機。
請將攝影機接上這台電腦。</translation>
    </message>
    <message id="ID_Engine_Camera_Black">
        <source></source>
        <translation>畫面是黑的。
請打開鏡頭蓋，或開燈。</translation>
    </message>
    <message id="ID_Engine_Camera_Busy">
        <source></source>
        <translation>其他程式正在使用攝影機。
請關閉該程式。</translation>
    </message>
    <message id="ID_Engine_Camera_BusyBy">
        <source></source>
        <translation>%1 正在使用攝影機。
請關閉該程式。</translation>
    </message>
    <message id="ID_Engine_Camera_Denied">
        <source></source>
        <translation>系統拒絕存取攝影機。
請在系統的隱私權設定中允許使用。</translation>
    </message>
    <message id="ID_Engine_Camera_Failed">
        <source></source>
        <translation>攝影機無法運作。
請拔除後重新接上，或選擇其他攝影機。</translation>
    </message>
    <message id="ID_Engine_Camera_Hung">
        <source></source>
        <translation>攝影機沒有回應。
請拔除後重新接上，或重新啟動電腦。</translation>
    </message>
    <message id="ID_Engine_Camera_NotBuilt">
        <source></source>
        <translation>此程式無法在此系統上使用攝影機。
請在其他程式中試用。</translation>
    </message>
    <message id="ID_Engine_Camera_ServerLost">
        <source></source>
        <translation>這台電腦的攝影機服務沒有執行。
請稍候，或重新啟動電腦。</translation>
    </message>
    <message id="ID_Engine_Camera_Stalled">
        <source></source>
        <translation>攝影機沒有畫面。
請拔除後重新接上，或選擇其他攝影機。</translation>
    </message>
    <message id="ID_Engine_Camera_Starting">
        <source></source>
        <translation>攝影機正在啟動…</translation>
    </message>
    <message id="ID_Engine_Camera_Unplugged">
        <source></source>
        <translation>攝影機已拔除。
請重新接上，或選擇其他攝影機。</translation>
    </message>
    <message id="ID_Engine_Camera_Unreadable">
        <source></source>
        <translation>此處無法顯示該攝影機的畫面。
請選擇其他攝影機，或在其設定中選擇其他格式。</translation>
    </message>
    <message id="ID_Engine_File_BadEnd">
        <source></source>
        <translation>在 Windows 上，名稱不能以點或空格結尾</translation>
    </message>
    <message id="ID_Engine_File_BadLetter">
        <source></source>
        <translation>在 Windows 上，名稱不能包含 &lt; &gt; : " | ? * 或控制字元</translation>
    </message>
    <message id="ID_Engine_File_DeadLink">
        <source></source>
        <translation>它是一個失效的連結</translation>
    </message>
    <message id="ID_Engine_File_DeviceName">
        <source></source>
        <translation>在 Windows 上，%1 是裝置名稱</translation>
    </message>
    <message id="ID_Engine_File_DiskSilent">
        <source></source>
        <translation>磁碟沒有回應</translation>
    </message>
    <message id="ID_Engine_File_ForeignLink">
        <source></source>
        <translation>它是屬於其他使用者的連結</translation>
    </message>
    <message id="ID_Engine_File_LockHeld">
        <source></source>
        <translation>另一個程式佔用了它的鎖定檔 %1</translation>
    </message>
    <message id="ID_Engine_File_LockNotMade">
        <source></source>
        <translation>無法建立它的鎖定檔</translation>
    </message>
    <message id="ID_Engine_File_LockNotRegular">
        <source></source>
        <translation>它的鎖定檔 %1 不是一般檔案</translation>
    </message>
    <message id="ID_Engine_File_NoFolder">
        <source></source>
        <translation>無法建立它的資料夾</translation>
    </message>
    <message id="ID_Engine_File_NotMade">
        <source></source>
        <translation>無法產生新內容，磁碟是否已滿？</translation>
    </message>
    <message id="ID_Engine_File_NotRegular">
        <source></source>
        <translation>它不是一般檔案</translation>
    </message>
    <message id="ID_Engine_File_TooLarge">
        <source></source>
        <translation>它大於 %1 MiB</translation>
    </message>
    <message id="ID_Engine_File_TooManyChanges">
        <source></source>
        <translation>等待寫入磁碟的變更太多</translation>
    </message>
    <message id="ID_Engine_Json_Document">
        <source></source>
        <translation>整份文件必須是一個物件</translation>
    </message>
    <message id="ID_Engine_Json_Empty">
        <source></source>
        <translation>不能是空的</translation>
    </message>
    <message id="ID_Engine_Json_Flag">
        <source></source>
        <translation>必須是 true 或 false</translation>
    </message>
    <message id="ID_Engine_Json_Invalid">
        <source></source>
        <translation>不是有效的 JSON：%1</translation>
    </message>
    <message id="ID_Engine_Json_List">
        <source></source>
        <translation>必須是清單</translation>
    </message>
    <message id="ID_Engine_Json_Missing">
        <source></source>
        <translation>缺少此欄位</translation>
    </message>
    <message id="ID_Engine_Json_Number">
        <source></source>
        <translation>必須是數字</translation>
    </message>
    <message id="ID_Engine_Json_Object">
        <source></source>
        <translation>必須是物件</translation>
    </message>
    <message id="ID_Engine_Json_ShortList">
        <source></source>
        <translation>必須是最多 %1 項的清單</translation>
    </message>
    <message id="ID_Engine_Json_ShortText">
        <source></source>
        <translation>必須是最多 %1 個字元的文字</translation>
    </message>
    <message id="ID_Engine_Json_Text">
        <source></source>
        <translation>必須是文字</translation>
    </message>
    <message id="ID_Engine_Json_Twice">
        <source></source>
        <translation>出現了兩次</translation>
    </message>
    <message id="ID_Engine_Json_Unknown">
        <source></source>
        <translation>不是此處的已知欄位</translation>
    </message>
    <message id="ID_Engine_Json_WholeNumber">
        <source></source>
        <translation>必須是 %1 到 %2 之間的整數</translation>
    </message>
    <message id="ID_Engine_Json_Word">
        <source></source>
        <translation>必須是以下其中之一：%1</translation>
    </message>
    <message id="ID_Engine_Json_WordList">
        <source></source>
        <translation>必須是由以下詞組成的清單：%1</translation>
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
    <message id="ID_Engine_Scenario_Base">
        <source></source>
        <translation>必須是內建腳本的名稱</translation>
    </message>
    <message id="ID_Engine_Scenario_Levels">
        <source></source>
        <translation>必須是 [毫秒, 音量]：毫秒從 0 開始遞增，音量為 0 到 1</translation>
    </message>
    <message id="ID_Engine_Scenario_NoDevice">
        <source></source>
        <translation>此腳本中沒有這樣的 %1</translation>
    </message>
    <message id="ID_Engine_Scenario_NoVolume">
        <source></source>
        <translation>攝影機沒有音量</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRead">
        <source></source>
        <translation>無法讀取：%1</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRegular">
        <source></source>
        <translation>不是一般檔案，請指定腳本檔案</translation>
    </message>
    <message id="ID_Engine_Scenario_SameId">
        <source></source>
        <translation>在其清單中必須唯一</translation>
    </message>
    <message id="ID_Engine_Scenario_TooLarge">
        <source></source>
        <translation>大於 1 MiB，請指定腳本檔案</translation>
    </message>
    <message id="ID_Engine_Scenario_TooManyDevices">
        <source></source>
        <translation>這類不同的裝置超過 %1 個；請接上之前出現過的裝置</translation>
    </message>
    <message id="ID_Engine_Scenario_Unknown">
        <source></source>
        <translation>沒有這個檔案，也沒有這個名稱的內建腳本（現有：%1）</translation>
    </message>
    <message id="ID_Engine_SoundNotBuilt">
        <source></source>
        <translation>沒有聲音：不支援此系統</translation>
    </message>
    <message id="ID_Engine_SoundServerLost">
        <source></source>
        <translation>聲音服務沒有執行</translation>
    </message>
    <message id="ID_Engine_SoundServerSilent">
        <source></source>
        <translation>聲音服務沒有回應</translation>
    </message>
    <message id="ID_Engine_TelephoneQuality">
        <source></source>
        <translation>%1（電話音質）</translation>
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
    <message id="ID_Host_Check_Loop">
        <source></source>
        <translation>聲音迴路</translation>
    </message>
    <message id="ID_Host_Config_BadLine">
        <source></source>
        <translation>%1：每一行必須是 KEY=VALUE（例如 server=HOST）或以分號開頭的註解；請在該檔案中更正</translation>
    </message>
    <message id="ID_Host_Config_BadValue">
        <source></source>
        <translation>%1：%2=%3：應為%4；請在該檔案中更正</translation>
    </message>
    <message id="ID_Host_Config_BadVariable">
        <source></source>
        <translation>%1=%2：應為%3</translation>
    </message>
    <message id="ID_Host_Config_UnknownKey">
        <source></source>
        <translation>%1：未知的鍵 %2；可用的鍵是 server、report-url 和 report-token-file</translation>
    </message>
    <message id="ID_Host_Config_Unreadable">
        <source></source>
        <translation>%1：無法作為設定檔讀取；請放置一個含有 server=HOST 這類行的文字檔，或將其刪除</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerLost">
        <source></source>
        <translation>攝影機服務沒有執行</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerSilent">
        <source></source>
        <translation>攝影機服務沒有回應</translation>
    </message>
    <message id="ID_Host_Devices_Cameras">
        <source></source>
        <translation>攝影機</translation>
    </message>
    <message id="ID_Host_Devices_Microphones">
        <source></source>
        <translation>麥克風</translation>
    </message>
    <message id="ID_Host_Devices_None">
        <source></source>
        <translation>找不到</translation>
    </message>
    <message id="ID_Host_Devices_NotBuilt">
        <source></source>
        <translation>此程式建置時未包含真實裝置（ENVCHECK_DEVICES）：請使用 --platform scripted</translation>
    </message>
    <message id="ID_Host_Devices_Speakers">
        <source></source>
        <translation>喇叭</translation>
    </message>
    <message id="ID_Host_Display_Gone">
        <source></source>
        <translation>與螢幕的連線已中斷，檢測隨之結束：X 伺服器或 Wayland 合成器已結束；請重新開始檢測</translation>
    </message>
    <message id="ID_Host_Display_None">
        <source></source>
        <translation>沒有可用的螢幕來開啟檢測：請在桌面工作階段中啟動，或透過 xvfb-run 啟動</translation>
    </message>
    <message id="ID_Host_Display_NotOpened">
        <source></source>
        <translation>無法開啟螢幕 %1：請在桌面工作階段中啟動檢測，或透過 xvfb-run 啟動</translation>
    </message>
    <message id="ID_Host_Exit_AllPassed">
        <source></source>
        <translation>全部正常</translation>
    </message>
    <message id="ID_Host_Exit_BadInput">
        <source></source>
        <translation>指定的檔案無法使用</translation>
    </message>
    <message id="ID_Host_Exit_CannotWrite">
        <source></source>
        <translation>無法寫入檔案或資料夾</translation>
    </message>
    <message id="ID_Host_Exit_LeftEarly">
        <source></source>
        <translation>中途離開</translation>
    </message>
    <message id="ID_Host_Exit_PutOut">
        <source></source>
        <translation>課堂端已結束這次連線</translation>
    </message>
    <message id="ID_Host_Exit_SomeFailed">
        <source></source>
        <translation>有檢測異常</translation>
    </message>
    <message id="ID_Host_Exit_TourProblems">
        <source></source>
        <translation>自動導覽發現問題</translation>
    </message>
    <message id="ID_Host_Exit_Unavailable">
        <source></source>
        <translation>缺少螢幕、連接埠或伺服器</translation>
    </message>
    <message id="ID_Host_Exit_WrongUsage">
        <source></source>
        <translation>用法錯誤：訊息會指出相關選項</translation>
    </message>
    <message id="ID_Host_Figure_Answered">
        <source></source>
        <translation>已回應的探測封包</translation>
    </message>
    <message id="ID_Host_Figure_Bandwidth">
        <source></source>
        <translation>收到的最高頻率</translation>
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
        <translation>削波失真</translation>
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
        <translation>第一個畫面所需時間</translation>
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
        <translation>交流聲頻率</translation>
    </message>
    <message id="ID_Host_Figure_HumShare">
        <source></source>
        <translation>雜訊中的交流聲</translation>
    </message>
    <message id="ID_Host_Figure_Jitter">
        <source></source>
        <translation>抖動</translation>
    </message>
    <message id="ID_Host_Figure_Level">
        <source></source>
        <translation>音量</translation>
    </message>
    <message id="ID_Host_Figure_LoopDelay">
        <source></source>
        <translation>從喇叭到麥克風的延遲</translation>
    </message>
    <message id="ID_Host_Figure_LoopLevel">
        <source></source>
        <translation>麥克風處的音量</translation>
    </message>
    <message id="ID_Host_Figure_Loss">
        <source></source>
        <translation>封包遺失率</translation>
    </message>
    <message id="ID_Host_Figure_Modes">
        <source></source>
        <translation>攝影機模式</translation>
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
    <message id="ID_Host_Figure_Program">
        <source></source>
        <translation>使用它的程式</translation>
    </message>
    <message id="ID_Host_Figure_Rate">
        <source></source>
        <translation>影格率</translation>
    </message>
    <message id="ID_Host_Figure_Seconds">
        <source></source>
        <translation>測量時間</translation>
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
    <message id="ID_Host_File_IsFolder">
        <source></source>
        <translation>這是資料夾；請指定其中的檔案</translation>
    </message>
    <message id="ID_Host_File_NameOther">
        <source></source>
        <translation>%1；請指定其他檔案</translation>
    </message>
    <message id="ID_Host_File_NoFolder">
        <source></source>
        <translation>資料夾 %1 不存在；請建立它，或指定其他檔案</translation>
    </message>
    <message id="ID_Host_File_NoObject">
        <source></source>
        <translation>文件不是物件</translation>
    </message>
    <message id="ID_Host_File_NoReport">
        <source></source>
        <translation>%1 不是 JSON 格式的報告（%2）；請指定由檢測產生的報告</translation>
    </message>
    <message id="ID_Host_File_NoRight">
        <source></source>
        <translation>您沒有該位置的寫入權限；請指定其他檔案</translation>
    </message>
    <message id="ID_Host_File_NotOrdinary">
        <source></source>
        <translation>這不是一般檔案；請指定其他檔案</translation>
    </message>
    <message id="ID_Host_File_NotRead">
        <source></source>
        <translation>無法讀取 %1：%2；請指定由檢測產生的報告</translation>
    </message>
    <message id="ID_Host_File_NotWritten">
        <source></source>
        <translation>無法寫入 %1：%2</translation>
    </message>
    <message id="ID_Host_File_TooLarge">
        <source></source>
        <translation>檔案過大</translation>
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
    <message id="ID_Host_Help_Arguments">
        <source></source>
        <translation>引數：</translation>
    </message>
    <message id="ID_Host_Help_Check">
        <source></source>
        <translation>在線上課程開始前檢測網路、攝影機、喇叭和麥克風。</translation>
    </message>
    <message id="ID_Host_Help_Commands">
        <source></source>
        <translation>指令：</translation>
    </message>
    <message id="ID_Host_Help_Devices">
        <source></source>
        <translation>列出攝影機、麥克風和喇叭及其狀態。結束代碼 0：清單完整（即使沒有找到裝置）；69：攝影機服務或聲音服務沒有執行或沒有回應。</translation>
    </message>
    <message id="ID_Host_Help_ExitCodes">
        <source></source>
        <translation>結束代碼：</translation>
    </message>
    <message id="ID_Host_Help_File">
        <source></source>
        <translation>由檢測產生的報告；- 代表標準輸入。省略時：最近一次檢測的報告。</translation>
    </message>
    <message id="ID_Host_Help_History">
        <source></source>
        <translation>列出以前的檢測及其結果和報告。</translation>
    </message>
    <message id="ID_Host_Help_Network">
        <source></source>
        <translation>測量延遲和封包遺失率，並即時輸出數值。</translation>
    </message>
    <message id="ID_Host_Help_NoCommand">
        <source></source>
        <translation>不帶指令時會開啟檢測。每個指令都有各自的 --help。</translation>
    </message>
    <message id="ID_Host_Help_Options">
        <source></source>
        <translation>選項：</translation>
    </message>
    <message id="ID_Host_Help_Report">
        <source></source>
        <translation>以文字、HTML 或 JSON 顯示以往檢測的報告，或將多份報告彙整成一張表。</translation>
    </message>
    <message id="ID_Host_Help_Serve">
        <source></source>
        <translation>作為小型 STUN 伺服器回應其他電腦的測量，直到被停止。</translation>
    </message>
    <message id="ID_Host_Help_Usage">
        <source></source>
        <translation>用法：%1</translation>
    </message>
    <message id="ID_Host_Help_UsageOptions">
        <source></source>
        <translation>[選項]</translation>
    </message>
    <message id="ID_Host_History_NoReport">
        <source></source>
        <translation>還沒有以前檢測的報告；請執行檢測，或指定報告檔案（FILE）</translation>
    </message>
    <message id="ID_Host_History_None">
        <source></source>
        <translation>沒有以前的檢測。</translation>
    </message>
    <message id="ID_Host_Language_Unknown">
        <source></source>
        <translation>--language %1：沒有這種語言的文字；請從以下語言中選擇：%2</translation>
    </message>
    <message id="ID_Host_LastGoodRun">
        <source></source>
        <translation>上次全部正常的檢測</translation>
    </message>
    <message id="ID_Host_LastGoodRun_None">
        <source></source>
        <translation>先前沒有全部正常的檢測。</translation>
    </message>
    <message id="ID_Host_MeasuringFailed">
        <source></source>
        <translation>測量失敗：%1</translation>
    </message>
    <message id="ID_Host_Network_Ends">
        <source></source>
        <translation>伺服器 %1，本機 %2</translation>
    </message>
    <message id="ID_Host_Network_Figures">
        <source></source>
        <translation>延遲 %1 ms，抖動 %2 ms，封包遺失率 %3%，已傳送 %4，已回應 %5：%6</translation>
    </message>
    <message id="ID_Host_Network_NameServer">
        <source></source>
        <translation>未測量：沒有伺服器；請用 --server、%1 或在 %2 中指定</translation>
    </message>
    <message id="ID_Host_Network_NoAnswer">
        <source></source>
        <translation>沒有回應，封包遺失率 %1%，已傳送 %2，已回應 %3</translation>
    </message>
    <message id="ID_Host_Network_NoRoute">
        <source></source>
        <translation>沒有到伺服器的路由，遺失 %1%，已傳送 %2，已回應 %3</translation>
    </message>
    <message id="ID_Host_Network_NoSuchServer">
        <source></source>
        <translation>沒有這個伺服器，封包遺失率 %1%，已傳送 %2，已回應 %3</translation>
    </message>
    <message id="ID_Host_Network_Refused">
        <source></source>
        <translation>伺服器拒絕，遺失 %1%，已傳送 %2，已回應 %3</translation>
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
    <message id="ID_Host_Option_Account">
        <source></source>
        <translation>要顯示的帳號；預設為系統使用者。</translation>
    </message>
    <message id="ID_Host_Option_Cdn">
        <source></source>
        <translation>要顯示的 CDN。</translation>
    </message>
    <message id="ID_Host_Option_Count">
        <source></source>
        <translation>得到 N 個數值後結束；否則指令會一直執行，直到被停止。</translation>
    </message>
    <message id="ID_Host_Option_Diagnose">
        <source></source>
        <translation>像 --unattended 一樣測量，並將報告、裝置、版本和記錄檔打包到 FILE.zip，供查找原因的人使用。沒有 --redact 時，不包含姓名和位址。</translation>
    </message>
    <message id="ID_Host_Option_FilesFrom">
        <source></source>
        <translation>同時從 FILE 讀取報告的名稱，每行一個；- 代表標準輸入。</translation>
    </message>
    <message id="ID_Host_Option_Format">
        <source></source>
        <translation>text（預設）、html 或 json；報告很多時用 room（表格）、map（每份報告一格的頁面）、csv 或 jsonl。</translation>
    </message>
    <message id="ID_Host_Option_Help">
        <source></source>
        <translation>顯示此說明。</translation>
    </message>
    <message id="ID_Host_Option_Json">
        <source></source>
        <translation>輸出 JSON 而不是表格。</translation>
    </message>
    <message id="ID_Host_Option_Language">
        <source></source>
        <translation>文字的語言，例如 en 或 zh_CN；預設為系統語言。</translation>
    </message>
    <message id="ID_Host_Option_Loop">
        <source></source>
        <translation>與 --unattended 一起使用：還會在選取的喇叭上播放一秒鐘輕微的上升音，並用選取的麥克風尋找它。會發出聲音。</translation>
    </message>
    <message id="ID_Host_Option_Nickname">
        <source></source>
        <translation>要顯示的暱稱；預設為系統使用者。</translation>
    </message>
    <message id="ID_Host_Option_Platform">
        <source></source>
        <translation>要檢測的裝置：devices（本機裝置，預設）或 scripted（腳本模擬）。</translation>
    </message>
    <message id="ID_Host_Option_Port">
        <source></source>
        <translation>回應所用的 UDP 連接埠；預設為 3478，0 表示任選可用的連接埠。</translation>
    </message>
    <message id="ID_Host_Option_Quiet">
        <source></source>
        <translation>檢測有異常時不開啟結果視窗。</translation>
    </message>
    <message id="ID_Host_Option_Redact">
        <source></source>
        <translation>要移除的內容：none（不移除，預設）、personal（移除位址、名稱和帳號）或 hash（替換為短代碼）。</translation>
    </message>
    <message id="ID_Host_Option_Report">
        <source></source>
        <translation>將報告寫入 FILE 而不是預設位置；副檔名（.json、.html 或 .txt）決定格式，- 代表標準輸出，為 JSON。</translation>
    </message>
    <message id="ID_Host_Option_ReportTokenFile">
        <source></source>
        <translation>存放報告伺服器所需權杖的檔案。只有您本人或群組可以讀取。</translation>
    </message>
    <message id="ID_Host_Option_ReportUrl">
        <source></source>
        <translation>傳送報告及其代碼的網址。不帶 --redact 時，其中不含姓名和位址。</translation>
    </message>
    <message id="ID_Host_Option_Results">
        <source></source>
        <translation>每次變更後，另將原始結果以 JSON 寫入 FILE；- 代表標準輸出，在結束時寫入。</translation>
    </message>
    <message id="ID_Host_Option_Scenario">
        <source></source>
        <translation>模擬裝置所用的腳本：一個檔案，或內建腳本的名稱，例如 all-well。會自動採用 --platform scripted。</translation>
    </message>
    <message id="ID_Host_Option_Server">
        <source></source>
        <translation>測量延遲和封包遺失率所用的 STUN 伺服器，也可寫成 stun:HOST:PORT。沒有連接埠時查詢該網域的 DNS 記錄（_stun._udp），否則連接埠為 3478。也可用 ENVCHECK_SERVER 或設定檔指定。未指定伺服器時不測量網路，由本機自己回應。</translation>
    </message>
    <message id="ID_Host_Option_Tour">
        <source></source>
        <translation>自動走完所有步驟，並把每一步的畫面儲存到 FOLDER。</translation>
    </message>
    <message id="ID_Host_Option_Unattended">
        <source></source>
        <translation>不開啟視窗、無需有人在場即可測量；--json 檔案（- 表示標準輸出）寫入報告。結束代碼：0 運作正常，1 需要處理，69 缺少服務或伺服器。</translation>
    </message>
    <message id="ID_Host_Option_Verbose">
        <source></source>
        <translation>同時將記錄寫到終端機。</translation>
    </message>
    <message id="ID_Host_Option_Version">
        <source></source>
        <translation>顯示版本。</translation>
    </message>
    <message id="ID_Host_Outcome_BrokenOff">
        <source></source>
        <translation>無人值守：測量完成前已結束</translation>
    </message>
    <message id="ID_Host_Outcome_Failed">
        <source></source>
        <translation>已完成，但有問題</translation>
    </message>
    <message id="ID_Host_Outcome_Faulty">
        <source></source>
        <translation>無人值守：有項目需要處理</translation>
    </message>
    <message id="ID_Host_Outcome_LeftEarly">
        <source></source>
        <translation>中途離開</translation>
    </message>
    <message id="ID_Host_Outcome_Passed">
        <source></source>
        <translation>全部正常</translation>
    </message>
    <message id="ID_Host_Outcome_PutOut">
        <source></source>
        <translation>課堂端已結束這次連線</translation>
    </message>
    <message id="ID_Host_Outcome_Unavailable">
        <source></source>
        <translation>無人值守：缺少某項服務，因此未能測量全部項目</translation>
    </message>
    <message id="ID_Host_Outcome_Works">
        <source></source>
        <translation>無人值守：測量的各項均運作正常</translation>
    </message>
    <message id="ID_Host_OutputNotWritten">
        <source></source>
        <translation>無法寫入輸出；請檢查磁碟是否已滿</translation>
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
    <message id="ID_Host_Reason_Muted">
        <source></source>
        <translation>裝置已靜音</translation>
    </message>
    <message id="ID_Host_Reason_NoAnswer">
        <source></source>
        <translation>伺服器沒有回應</translation>
    </message>
    <message id="ID_Host_Reason_NoRoute">
        <source></source>
        <translation>沒有到伺服器的路由</translation>
    </message>
    <message id="ID_Host_Reason_NotBuilt">
        <source></source>
        <translation>不支援此系統</translation>
    </message>
    <message id="ID_Host_Reason_NotOffered">
        <source></source>
        <translation>此引擎無法做到</translation>
    </message>
    <message id="ID_Host_Reason_NotRecorded">
        <source></source>
        <translation>引擎不記錄此項</translation>
    </message>
    <message id="ID_Host_Reason_Off">
        <source></source>
        <translation>裝置已關閉</translation>
    </message>
    <message id="ID_Host_Reason_Refused">
        <source></source>
        <translation>伺服器拒絕了請求</translation>
    </message>
    <message id="ID_Host_Reason_Scripted">
        <source></source>
        <translation>腳本模擬的裝置沒有此數值</translation>
    </message>
    <message id="ID_Host_Reason_ServerLost">
        <source></source>
        <translation>聲音服務沒有執行</translation>
    </message>
    <message id="ID_Host_Reason_ServerSilent">
        <source></source>
        <translation>聲音服務沒有回應</translation>
    </message>
    <message id="ID_Host_Reason_Silent">
        <source></source>
        <translation>裝置沒有任何輸出</translation>
    </message>
    <message id="ID_Host_Reason_StepNotOpened">
        <source></source>
        <translation>未開啟此步驟</translation>
    </message>
    <message id="ID_Host_Reason_Unreadable">
        <source></source>
        <translation>攝影機未傳送可顯示的格式</translation>
    </message>
    <message id="ID_Host_Reason_VolumeZero">
        <source></source>
        <translation>音量為 0</translation>
    </message>
    <message id="ID_Host_Redacted_Hash">
        <source></source>
        <translation>位址、名稱和帳號已替換為短代碼。</translation>
    </message>
    <message id="ID_Host_Redacted_Personal">
        <source></source>
        <translation>已移除位址、名稱和帳號。</translation>
    </message>
    <message id="ID_Host_Remedy_Clipping">
        <source></source>
        <translation>麥克風音量過大，聲音失真，請調低麥克風音量。</translation>
    </message>
    <message id="ID_Host_Remedy_Hum">
        <source></source>
        <translation>麥克風有電流嗡聲，請換一個插孔或線材，並讓它遠離電源供應器。</translation>
    </message>
    <message id="ID_Host_Remedy_LoopNotHeard">
        <source></source>
        <translation>麥克風沒有聽到喇叭，請調高兩者的音量，並確認它們屬於同一副耳機或在同一個房間。</translation>
    </message>
    <message id="ID_Host_Remedy_ServerSilent">
        <source></source>
        <translation>系統的影像和聲音服務沒有回應，請登出後重新登入，或重新啟動電腦。</translation>
    </message>
    <message id="ID_Host_ReportIsIn">
        <source></source>
        <translation>報告位於 %1</translation>
    </message>
    <message id="ID_Host_Report_Answer">
        <source></source>
        <translation>回答</translation>
    </message>
    <message id="ID_Host_Report_BadTime">
        <source></source>
        <translation>必須是時間，例如 2026-03-01T08:30:00Z</translation>
    </message>
    <message id="ID_Host_Report_Causes">
        <source></source>
        <translation>原因</translation>
    </message>
    <message id="ID_Host_Report_Computer">
        <source></source>
        <translation>電腦</translation>
    </message>
    <message id="ID_Host_Report_Contradiction">
        <source></source>
        <translation>矛盾</translation>
    </message>
    <message id="ID_Host_Report_Count">
        <source></source>
        <translation>報告</translation>
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
    <message id="ID_Host_Report_OtherFormat">
        <source></source>
        <translation>這不是檢測報告</translation>
    </message>
    <message id="ID_Host_Report_OtherVersion">
        <source></source>
        <translation>版本為 %1，而本程式讀取版本 %2</translation>
    </message>
    <message id="ID_Host_Report_Outcome">
        <source></source>
        <translation>整體結果</translation>
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
    <message id="ID_Host_Serve_Answering">
        <source></source>
        <translation>正在 UDP 連接埠 %1 上回應。其他電腦可用 --server stun:HOST:%1 測量到本機的網路</translation>
    </message>
    <message id="ID_Host_Serve_NoPort">
        <source></source>
        <translation>無法使用 UDP 連接埠 %1：%2。請用 --port 選擇其他連接埠</translation>
    </message>
    <message id="ID_Host_Serve_NotBuilt">
        <source></source>
        <translation>serve 需要建置時包含真實裝置的程式（ENVCHECK_DEVICES）</translation>
    </message>
    <message id="ID_Host_State_Absent">
        <source></source>
        <translation>未連接</translation>
    </message>
    <message id="ID_Host_State_Busy">
        <source></source>
        <translation>被佔用</translation>
    </message>
    <message id="ID_Host_State_Denied">
        <source></source>
        <translation>存取被拒</translation>
    </message>
    <message id="ID_Host_State_Failed">
        <source></source>
        <translation>故障</translation>
    </message>
    <message id="ID_Host_State_Hung">
        <source></source>
        <translation>沒有回應</translation>
    </message>
    <message id="ID_Host_State_Off">
        <source></source>
        <translation>已關閉</translation>
    </message>
    <message id="ID_Host_State_Ready">
        <source></source>
        <translation>就緒</translation>
    </message>
    <message id="ID_Host_State_Silent">
        <source></source>
        <translation>沒有輸出</translation>
    </message>
    <message id="ID_Host_State_Working">
        <source></source>
        <translation>正常</translation>
    </message>
    <message id="ID_Host_Takes_Ending">
        <source></source>
        <translation>以 %1 結尾的名稱，或代表標準輸出的 -</translation>
    </message>
    <message id="ID_Host_Takes_FileEnding">
        <source></source>
        <translation>以 %1 結尾的檔案名稱</translation>
    </message>
    <message id="ID_Host_Takes_Number">
        <source></source>
        <translation>%1 到 %2 之間的數字</translation>
    </message>
    <message id="ID_Host_Takes_OneOf">
        <source></source>
        <translation>以下其中之一：%1</translation>
    </message>
    <message id="ID_Host_Takes_Server">
        <source></source>
        <translation>HOST 或 HOST:PORT，前面可加 stun:，例如 stun:stun.example.org:3478</translation>
    </message>
    <message id="ID_Host_Takes_WebAddress">
        <source></source>
        <translation>http 或 https 網址</translation>
    </message>
    <message id="ID_Host_Token_NoToken">
        <source></source>
        <translation>%1：這不是權杖；它應為一行，由字母、數字和 - . _ ~ + / 組成，結尾可有 =</translation>
    </message>
    <message id="ID_Host_Token_NotEncrypted">
        <source></source>
        <translation>%1：權杖只透過 https 傳送；請使用 https 網址，或不用權杖</translation>
    </message>
    <message id="ID_Host_Token_NotRead">
        <source></source>
        <translation>無法讀取 %1：%2；請指定存放報告伺服器權杖的檔案</translation>
    </message>
    <message id="ID_Host_Token_Open">
        <source></source>
        <translation>%1 含有權杖，而所有使用者都能讀寫它；請用以下命令變更：chmod o= %1</translation>
    </message>
    <message id="ID_Host_Tour_Done">
        <source></source>
        <translation>已將 %1 張畫面儲存到 %2；可在 index.html 中檢視全部。</translation>
    </message>
    <message id="ID_Host_Tour_NoFolder">
        <source></source>
        <translation>--tour %1：無法建立此資料夾；請指定其他資料夾</translation>
    </message>
    <message id="ID_Host_Tour_NotWritten">
        <source></source>
        <translation>%1：%2；請指定其他資料夾</translation>
    </message>
    <message id="ID_Host_Upload_Kept">
        <source></source>
        <translation>報告未送達 %1：%2。報告已保留，下次執行時會再次傳送。</translation>
    </message>
    <message id="ID_Host_Upload_NoAnswer">
        <source></source>
        <translation>未及時回應</translation>
    </message>
    <message id="ID_Host_Upload_Refused">
        <source></source>
        <translation>%1 不接受該報告：%2。不會再次傳送。</translation>
    </message>
    <message id="ID_Host_Upload_Sending">
        <source></source>
        <translation>正在將報告傳送到 %1…</translation>
    </message>
    <message id="ID_Host_Upload_WrongToken">
        <source></source>
        <translation>缺少權杖或權杖錯誤（HTTP %1）</translation>
    </message>
    <message id="ID_Host_Usage_EmptyName">
        <source></source>
        <translation>--%1 的名稱不能是空的</translation>
    </message>
    <message id="ID_Host_Usage_ExtraArgument">
        <source></source>
        <translation>多了一個引數「%1」：請將它去掉，或參閱 --help</translation>
    </message>
    <message id="ID_Host_Usage_LeaveOneOut">
        <source></source>
        <translation>%1 不能與 %2 同時使用：請去掉其中一個</translation>
    </message>
    <message id="ID_Host_Usage_Needs">
        <source></source>
        <translation>--%1 需要 --%2：請加上它，或去掉 --%1</translation>
    </message>
    <message id="ID_Host_Usage_OtherCommand">
        <source></source>
        <translation>--%1 不能用於 %2：請參閱 --help</translation>
    </message>
    <message id="ID_Host_Usage_SamePlace">
        <source></source>
        <translation>--%1 和 --%2 會寫入同一位置（%3）：請指定兩個不同的位置</translation>
    </message>
    <message id="ID_Host_Usage_SeeHelp">
        <source></source>
        <translation>%1請參閱 --help。</translation>
    </message>
    <message id="ID_Host_Usage_Takes">
        <source></source>
        <translation>--%1 %2：應為 %3</translation>
    </message>
    <message id="ID_Host_Usage_TheCheck">
        <source></source>
        <translation>檢測</translation>
    </message>
    <message id="ID_Host_Usage_UnknownCommand">
        <source></source>
        <translation>未知的指令「%1」：請參閱 --help</translation>
    </message>
    <message id="ID_Host_Verdict_Faulty">
        <source></source>
        <translation>需要處理</translation>
    </message>
    <message id="ID_Host_Verdict_Heard">
        <source></source>
        <translation>聽到</translation>
    </message>
    <message id="ID_Host_Verdict_NotHeard">
        <source></source>
        <translation>未聽到</translation>
    </message>
    <message id="ID_Host_Verdict_NotTried">
        <source></source>
        <translation>未嘗試</translation>
    </message>
    <message id="ID_Host_Verdict_Unmeasured">
        <source></source>
        <translation>未測量</translation>
    </message>
    <message id="ID_Host_Verdict_Works">
        <source></source>
        <translation>運作正常</translation>
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
        <translation>聽不到自己的聲音，或音量條不動</translation>
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
        <translation>找不到該伺服器名稱，請檢查拼字，並確認已連上網路。</translation>
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
        <translation>裝置沒有回應，請拔除後重新接上，或重新啟動電腦。</translation>
    </message>
    <message id="ID_Host_Remedy_Stalled">
        <source></source>
        <translation>攝影機沒有傳來畫面，請拔除後重新接上，或選擇其他攝影機。</translation>
    </message>
    <message id="ID_Host_Remedy_Black">
        <source></source>
        <translation>畫面是黑的，請打開鏡頭蓋並開燈。</translation>
    </message>
    <message id="ID_Host_Remedy_Frozen">
        <source></source>
        <translation>畫面靜止不動，請將攝影機拔除後重新接上。</translation>
    </message>
    <message id="ID_Host_Remedy_Unplugged">
        <source></source>
        <translation>裝置在檢測過程中被拔除，請重新接上並檢查線材。</translation>
    </message>
    <message id="ID_Host_Remedy_NotBuilt">
        <source></source>
        <translation>此程式無法在此系統上使用這類裝置，請在其他程式中試用。</translation>
    </message>
    <message id="ID_Host_Remedy_ServerLost">
        <source></source>
        <translation>系統的影像和聲音服務已停止，請登出後重新登入，或重新啟動電腦。</translation>
    </message>
    <message id="ID_Host_Remedy_Failed">
        <source></source>
        <translation>裝置發生故障，請重新接上，或換用其他裝置。</translation>
    </message>
    <message id="ID_Host_Remedy_Unreadable">
        <source></source>
        <translation>攝影機未傳送可在此處顯示的格式，請選擇其他攝影機，或在其設定中選擇其他格式。</translation>
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
