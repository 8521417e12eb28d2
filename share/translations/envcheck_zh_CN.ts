<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name></name>
    <message id="ID_CameraPage_1">
        <source></source>
        <translation>1. 请确认设备已连接好，并已在列表中选中。</translation>
    </message>
    <message id="ID_CameraPage_2">
        <source></source>
        <translation>2. 请关闭正在使用摄像头的其他程序。</translation>
    </message>
    <message id="ID_CameraPage_3">
        <source></source>
        <translation>3. 请打开镜头盖，或用按键开启摄像头。</translation>
    </message>
    <message id="ID_CameraPage_4">
        <source></source>
        <translation>4. 请在系统的隐私设置中允许使用摄像头。</translation>
    </message>
    <message id="ID_CameraPage_5">
        <source></source>
        <translation>5. 请重启电脑，或换用其他设备。</translation>
    </message>
    <message id="ID_CameraPage_Camera">
        <source></source>
        <translation>摄像头：</translation>
    </message>
    <message id="ID_CameraPage_CameraDisabled">
        <source></source>
        <translation>摄像头已关闭或被禁用</translation>
    </message>
    <message id="ID_CameraPage_CannotSee">
        <source></source>
        <translation>否，看不到</translation>
    </message>
    <message id="ID_CameraPage_ClickHere">
        <source></source>
        <translation>看不到自己？请点击这里</translation>
    </message>
    <message id="ID_CameraPage_DisabledWillMakeCameraUnusable">
        <source></source>
        <translation>摄像头已关闭，请在此处选择或将其启用。</translation>
    </message>
    <message id="ID_CameraPage_No">
        <source></source>
        <translation>否，看不到</translation>
    </message>
    <message id="ID_CameraPage_NoCameraImageWasDetected">
        <source></source>
        <translation>摄像头没有画面</translation>
    </message>
    <message id="ID_CameraPage_NotDetected">
        <source></source>
        <translation>此项检测尚未作答</translation>
    </message>
    <message id="ID_CameraPage_Yes">
        <source></source>
        <translation>是，能看到</translation>
    </message>
    <message id="ID_CameraPage_choseNo">
        <source></source>
        <translation>您看不到自己</translation>
    </message>
    <message id="ID_Camera_Check">
        <source></source>
        <translation>摄像头</translation>
    </message>
    <message id="ID_CheckResultPage_Abnormal">
        <source></source>
        <translation>异常</translation>
    </message>
    <message id="ID_CheckResultPage_CheckEquipmentAndRetest">
        <source></source>
        <translation>请检查设备后重新检测。</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentAbnormal">
        <source></source>
        <translation>部分设备有问题</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentNormal">
        <source></source>
        <translation>设备一切正常</translation>
    </message>
    <message id="ID_CheckResultPage_Headphone">
        <source></source>
        <translation>扬声器</translation>
    </message>
    <message id="ID_CheckResultPage_Normal">
        <source></source>
        <translation>正常</translation>
    </message>
    <message id="ID_CheckResultPage_OK">
        <source></source>
        <translation>检测完成，可以上课了。</translation>
    </message>
    <message id="ID_CheckResultPage_Redetect">
        <source></source>
        <translation>重新检测</translation>
    </message>
    <message id="ID_CheckResultPage_System">
        <source></source>
        <translation>系统</translation>
    </message>
    <message id="ID_ContentPage_NotFinishedIfLeave">
        <source></source>
        <translation>系统检测尚未完成，确定要退出吗？</translation>
    </message>
    <message id="ID_Engine_BuiltInResponder">
        <source></source>
        <translation>未测量：未设置服务器</translation>
    </message>
    <message id="ID_Engine_Camera_Absent">
        <source></source>
        <translation>未找到摄像头。
请将摄像头连接到这台电脑。</translation>
    </message>
    <message id="ID_Engine_Camera_Black">
        <source></source>
        <translation>画面是黑的。
请打开镜头盖，或开灯。</translation>
    </message>
    <message id="ID_Engine_Camera_Busy">
        <source></source>
        <translation>其他程序正在使用摄像头。
请关闭该程序。</translation>
    </message>
    <message id="ID_Engine_Camera_BusyBy">
        <source></source>
        <translation>%1 正在使用摄像头。
请关闭该程序。</translation>
    </message>
    <message id="ID_Engine_Camera_Denied">
        <source></source>
        <translation>系统拒绝访问摄像头。
请在系统的隐私设置中允许使用。</translation>
    </message>
    <message id="ID_Engine_Camera_Failed">
        <source></source>
        <translation>摄像头无法工作。
请拔下后重新插上，或选择其他摄像头。</translation>
    </message>
    <message id="ID_Engine_Camera_Hung">
        <source></source>
        <translation>摄像头没有响应。
请拔下后重新插上，或重启电脑。</translation>
    </message>
    <message id="ID_Engine_Camera_NotBuilt">
        <source></source>
        <translation>此程序无法在此系统上使用摄像头。
请在其他程序中试用。</translation>
    </message>
    <message id="ID_Engine_Camera_ServerLost">
        <source></source>
        <translation>这台电脑的摄像头服务没有运行。
请稍候，或重启电脑。</translation>
    </message>
    <message id="ID_Engine_Camera_Stalled">
        <source></source>
        <translation>摄像头没有画面。
请拔下后重新插上，或选择其他摄像头。</translation>
    </message>
    <message id="ID_Engine_Camera_Starting">
        <source></source>
        <translation>摄像头正在启动…</translation>
    </message>
    <message id="ID_Engine_Camera_Unplugged">
        <source></source>
        <translation>摄像头已拔下。
请重新插上，或选择其他摄像头。</translation>
    </message>
    <message id="ID_Engine_Camera_Unreadable">
        <source></source>
        <translation>此处无法显示该摄像头的画面。
请选择其他摄像头，或在其设置中选择其他格式。</translation>
    </message>
    <message id="ID_Engine_File_BadEnd">
        <source></source>
        <translation>在 Windows 上，名称不能以点或空格结尾</translation>
    </message>
    <message id="ID_Engine_File_BadLetter">
        <source></source>
        <translation>在 Windows 上，名称不能包含 &lt; &gt; : " | ? * 或控制字符</translation>
    </message>
    <message id="ID_Engine_File_DeadLink">
        <source></source>
        <translation>它是一个失效的链接</translation>
    </message>
    <message id="ID_Engine_File_DeviceName">
        <source></source>
        <translation>在 Windows 上，%1 是设备名称</translation>
    </message>
    <message id="ID_Engine_File_DiskSilent">
        <source></source>
        <translation>磁盘没有响应</translation>
    </message>
    <message id="ID_Engine_File_ForeignLink">
        <source></source>
        <translation>它是属于其他用户的链接</translation>
    </message>
    <message id="ID_Engine_File_LockHeld">
        <source></source>
        <translation>另一个程序占用了它的锁文件 %1</translation>
    </message>
    <message id="ID_Engine_File_LockNotMade">
        <source></source>
        <translation>无法创建它的锁文件</translation>
    </message>
    <message id="ID_Engine_File_LockNotRegular">
        <source></source>
        <translation>它的锁文件 %1 不是普通文件</translation>
    </message>
    <message id="ID_Engine_File_NoFolder">
        <source></source>
        <translation>无法创建它的文件夹</translation>
    </message>
    <message id="ID_Engine_File_NotMade">
        <source></source>
        <translation>无法生成新内容，磁盘是否已满？</translation>
    </message>
    <message id="ID_Engine_File_NotRegular">
        <source></source>
        <translation>它不是普通文件</translation>
    </message>
    <message id="ID_Engine_File_TooLarge">
        <source></source>
        <translation>它大于 %1 MiB</translation>
    </message>
    <message id="ID_Engine_File_TooManyChanges">
        <source></source>
        <translation>等待写入磁盘的更改太多</translation>
    </message>
    <message id="ID_Engine_Json_Document">
        <source></source>
        <translation>整个文档必须是一个对象</translation>
    </message>
    <message id="ID_Engine_Json_Empty">
        <source></source>
        <translation>不能为空</translation>
    </message>
    <message id="ID_Engine_Json_Flag">
        <source></source>
        <translation>必须是 true 或 false</translation>
    </message>
    <message id="ID_Engine_Json_Invalid">
        <source></source>
        <translation>不是有效的 JSON：%1</translation>
    </message>
    <message id="ID_Engine_Json_List">
        <source></source>
        <translation>必须是列表</translation>
    </message>
    <message id="ID_Engine_Json_Missing">
        <source></source>
        <translation>缺失</translation>
    </message>
    <message id="ID_Engine_Json_Number">
        <source></source>
        <translation>必须是数字</translation>
    </message>
    <message id="ID_Engine_Json_Object">
        <source></source>
        <translation>必须是对象</translation>
    </message>
    <message id="ID_Engine_Json_ShortList">
        <source></source>
        <translation>必须是最多 %1 项的列表</translation>
    </message>
    <message id="ID_Engine_Json_ShortText">
        <source></source>
        <translation>必须是最多 %1 个字符的文本</translation>
    </message>
    <message id="ID_Engine_Json_Text">
        <source></source>
        <translation>必须是文本</translation>
    </message>
    <message id="ID_Engine_Json_Twice">
        <source></source>
        <translation>出现了两次</translation>
    </message>
    <message id="ID_Engine_Json_Unknown">
        <source></source>
        <translation>不是此处的已知字段</translation>
    </message>
    <message id="ID_Engine_Json_WholeNumber">
        <source></source>
        <translation>必须是 %1 到 %2 之间的整数</translation>
    </message>
    <message id="ID_Engine_Json_Word">
        <source></source>
        <translation>必须是以下之一：%1</translation>
    </message>
    <message id="ID_Engine_Json_WordList">
        <source></source>
        <translation>必须是由以下词组成的列表：%1</translation>
    </message>
    <message id="ID_Engine_NoCamera">
        <source></source>
        <translation>无摄像头</translation>
    </message>
    <message id="ID_Engine_NoMicrophone">
        <source></source>
        <translation>无麦克风</translation>
    </message>
    <message id="ID_Engine_NoSpeaker">
        <source></source>
        <translation>未找到扬声器</translation>
    </message>
    <message id="ID_Engine_NoSpeakerSelected">
        <source></source>
        <translation>未选择扬声器</translation>
    </message>
    <message id="ID_Engine_NotConnected">
        <source></source>
        <translation>未连接</translation>
    </message>
    <message id="ID_Engine_Scenario_Base">
        <source></source>
        <translation>必须是内置脚本的名称</translation>
    </message>
    <message id="ID_Engine_Scenario_Levels">
        <source></source>
        <translation>必须是 [毫秒, 音量]：毫秒从 0 开始递增，音量为 0 到 1</translation>
    </message>
    <message id="ID_Engine_Scenario_NoDevice">
        <source></source>
        <translation>此脚本中没有这样的 %1</translation>
    </message>
    <message id="ID_Engine_Scenario_NoVolume">
        <source></source>
        <translation>摄像头没有音量</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRead">
        <source></source>
        <translation>无法读取：%1</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRegular">
        <source></source>
        <translation>不是普通文件，请指定脚本文件</translation>
    </message>
    <message id="ID_Engine_Scenario_SameId">
        <source></source>
        <translation>在其列表中必须唯一</translation>
    </message>
    <message id="ID_Engine_Scenario_TooLarge">
        <source></source>
        <translation>大于 1 MiB，请指定脚本文件</translation>
    </message>
    <message id="ID_Engine_Scenario_TooManyDevices">
        <source></source>
        <translation>这类不同的设备超过 %1 个；请接入之前出现过的设备</translation>
    </message>
    <message id="ID_Engine_Scenario_Unknown">
        <source></source>
        <translation>没有这个文件，也没有这个名称的内置脚本（现有：%1）</translation>
    </message>
    <message id="ID_Engine_SoundNotBuilt">
        <source></source>
        <translation>没有声音：不支持此系统</translation>
    </message>
    <message id="ID_Engine_SoundServerLost">
        <source></source>
        <translation>声音服务没有运行</translation>
    </message>
    <message id="ID_Engine_SoundServerSilent">
        <source></source>
        <translation>声音服务没有响应</translation>
    </message>
    <message id="ID_Engine_TelephoneQuality">
        <source></source>
        <translation>%1（电话音质）</translation>
    </message>
    <message id="ID_HeadsetPage_2">
        <source></source>
        <translation>2. 请调高音量，并确认没有静音。</translation>
    </message>
    <message id="ID_HeadsetPage_3">
        <source></source>
        <translation>3. 请把插头完全插入，或重新连接蓝牙。</translation>
    </message>
    <message id="ID_HeadsetPage_4">
        <source></source>
        <translation>4. 请在系统的声音设置中选择同一输出设备。</translation>
    </message>
    <message id="ID_HeadsetPage_Bubble">
        <source></source>
        <translation>气泡</translation>
    </message>
    <message id="ID_HeadsetPage_CanHear">
        <source></source>
        <translation>是，能听到</translation>
    </message>
    <message id="ID_HeadsetPage_CanNotHear">
        <source></source>
        <translation>否，听不到</translation>
    </message>
    <message id="ID_HeadsetPage_ChoseWrong">
        <source></source>
        <translation>没有选对声音</translation>
    </message>
    <message id="ID_HeadsetPage_ClickHere">
        <source></source>
        <translation>听不到声音？请点击这里</translation>
    </message>
    <message id="ID_HeadsetPage_Doorbell">
        <source></source>
        <translation>门铃</translation>
    </message>
    <message id="ID_HeadsetPage_Piano">
        <source></source>
        <translation>钢琴</translation>
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
        <translation>您听到的是哪种声音？</translation>
    </message>
    <message id="ID_HeadsetPage_Saxophone">
        <source></source>
        <translation>萨克斯</translation>
    </message>
    <message id="ID_HeadsetPage_Seagull">
        <source></source>
        <translation>海鸥</translation>
    </message>
    <message id="ID_HeadsetPage_Shutter">
        <source></source>
        <translation>快门</translation>
    </message>
    <message id="ID_HeadsetPage_Speaker">
        <source></source>
        <translation>扬声器：</translation>
    </message>
    <message id="ID_HeadsetPage_Thunder">
        <source></source>
        <translation>雷声</translation>
    </message>
    <message id="ID_HeadsetPage_Tip">
        <source></source>
        <translation>请点击播放按钮，仔细听，然后选择您听到的声音。</translation>
    </message>
    <message id="ID_HeadsetPage_Typing">
        <source></source>
        <translation>打字</translation>
    </message>
    <message id="ID_HeadsetPage_choseNo">
        <source></source>
        <translation>您听不到声音</translation>
    </message>
    <message id="ID_HeadsetPage_play">
        <source></source>
        <translation>播放</translation>
    </message>
    <message id="ID_HeadsetPage_sound0">
        <source></source>
        <translation>声音 1</translation>
    </message>
    <message id="ID_HeadsetPage_sound1">
        <source></source>
        <translation>声音 2</translation>
    </message>
    <message id="ID_HeadsetPage_sound2">
        <source></source>
        <translation>声音 3</translation>
    </message>
    <message id="ID_HeadsetPage_sound3">
        <source></source>
        <translation>声音 4</translation>
    </message>
    <message id="ID_Host_Changes">
        <source></source>
        <translation>变化</translation>
    </message>
    <message id="ID_Host_Changes_None">
        <source></source>
        <translation>自那时起没有变化。</translation>
    </message>
    <message id="ID_Host_Check_Loop">
        <source></source>
        <translation>声音回路</translation>
    </message>
    <message id="ID_Host_Config_BadLine">
        <source></source>
        <translation>%1：每一行必须是 KEY=VALUE（例如 server=HOST）或以分号开头的注释；请在该文件中改正</translation>
    </message>
    <message id="ID_Host_Config_BadValue">
        <source></source>
        <translation>%1：%2=%3：应为%4；请在该文件中改正</translation>
    </message>
    <message id="ID_Host_Config_BadVariable">
        <source></source>
        <translation>%1=%2：应为%3</translation>
    </message>
    <message id="ID_Host_Config_UnknownKey">
        <source></source>
        <translation>%1：未知的键 %2；可用的键是 server、report-url 和 report-token-file</translation>
    </message>
    <message id="ID_Host_Config_Unreadable">
        <source></source>
        <translation>%1：无法作为配置文件读取；请放置一个含有 server=HOST 这类行的文本文件，或将其删除</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerLost">
        <source></source>
        <translation>摄像头服务没有运行</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerSilent">
        <source></source>
        <translation>摄像头服务没有响应</translation>
    </message>
    <message id="ID_Host_Devices_Cameras">
        <source></source>
        <translation>摄像头</translation>
    </message>
    <message id="ID_Host_Devices_Microphones">
        <source></source>
        <translation>麦克风</translation>
    </message>
    <message id="ID_Host_Devices_None">
        <source></source>
        <translation>未找到</translation>
    </message>
    <message id="ID_Host_Devices_NotBuilt">
        <source></source>
        <translation>此程序构建时未包含真实设备（ENVCHECK_DEVICES）：请使用 --platform scripted</translation>
    </message>
    <message id="ID_Host_Devices_Speakers">
        <source></source>
        <translation>扬声器</translation>
    </message>
    <message id="ID_Host_Display_Gone">
        <source></source>
        <translation>显示已断开，检测随之结束：X 服务器或 Wayland 合成器已退出；请重新开始检测</translation>
    </message>
    <message id="ID_Host_Display_None">
        <source></source>
        <translation>没有可用于打开检测的显示：请在桌面会话中启动，或通过 xvfb-run 启动</translation>
    </message>
    <message id="ID_Host_Display_NotOpened">
        <source></source>
        <translation>无法打开显示 %1：请在桌面会话中启动检测，或通过 xvfb-run 启动</translation>
    </message>
    <message id="ID_Host_Exit_AllPassed">
        <source></source>
        <translation>全部正常</translation>
    </message>
    <message id="ID_Host_Exit_BadInput">
        <source></source>
        <translation>指定的文件无法使用</translation>
    </message>
    <message id="ID_Host_Exit_CannotWrite">
        <source></source>
        <translation>无法写入文件或文件夹</translation>
    </message>
    <message id="ID_Host_Exit_LeftEarly">
        <source></source>
        <translation>中途离开</translation>
    </message>
    <message id="ID_Host_Exit_PutOut">
        <source></source>
        <translation>课堂结束了会话</translation>
    </message>
    <message id="ID_Host_Exit_SomeFailed">
        <source></source>
        <translation>有检测异常</translation>
    </message>
    <message id="ID_Host_Exit_TourProblems">
        <source></source>
        <translation>自动演示发现问题</translation>
    </message>
    <message id="ID_Host_Exit_Unavailable">
        <source></source>
        <translation>缺少显示、端口或服务器</translation>
    </message>
    <message id="ID_Host_Exit_WrongUsage">
        <source></source>
        <translation>用法错误：消息会指出相关选项</translation>
    </message>
    <message id="ID_Host_Figure_Answered">
        <source></source>
        <translation>已应答的探测包</translation>
    </message>
    <message id="ID_Host_Figure_Bandwidth">
        <source></source>
        <translation>收到的最高频率</translation>
    </message>
    <message id="ID_Host_Figure_Black">
        <source></source>
        <translation>黑屏画面</translation>
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
        <translation>检测后的默认设备</translation>
    </message>
    <message id="ID_Host_Figure_DefaultBefore">
        <source></source>
        <translation>检测前的默认设备</translation>
    </message>
    <message id="ID_Host_Figure_Delay">
        <source></source>
        <translation>往返时间（中位数）</translation>
    </message>
    <message id="ID_Host_Figure_Delay5">
        <source></source>
        <translation>往返时间（第 5 百分位）</translation>
    </message>
    <message id="ID_Host_Figure_Delay95">
        <source></source>
        <translation>往返时间（第 95 百分位）</translation>
    </message>
    <message id="ID_Host_Figure_FirstPicture">
        <source></source>
        <translation>第一个画面所需时间</translation>
    </message>
    <message id="ID_Host_Figure_Frozen">
        <source></source>
        <translation>静止画面</translation>
    </message>
    <message id="ID_Host_Figure_Height">
        <source></source>
        <translation>画面高度</translation>
    </message>
    <message id="ID_Host_Figure_HumFrequency">
        <source></source>
        <translation>交流声频率</translation>
    </message>
    <message id="ID_Host_Figure_HumShare">
        <source></source>
        <translation>噪声中的交流声</translation>
    </message>
    <message id="ID_Host_Figure_Jitter">
        <source></source>
        <translation>抖动</translation>
    </message>
    <message id="ID_Host_Figure_Level">
        <source></source>
        <translation>电平</translation>
    </message>
    <message id="ID_Host_Figure_LoopDelay">
        <source></source>
        <translation>从扬声器到麦克风的延迟</translation>
    </message>
    <message id="ID_Host_Figure_LoopLevel">
        <source></source>
        <translation>麦克风处的电平</translation>
    </message>
    <message id="ID_Host_Figure_Loss">
        <source></source>
        <translation>丢包率</translation>
    </message>
    <message id="ID_Host_Figure_Modes">
        <source></source>
        <translation>摄像头模式</translation>
    </message>
    <message id="ID_Host_Figure_MovedByUser">
        <source></source>
        <translation>用户调过音量</translation>
    </message>
    <message id="ID_Host_Figure_MutedAfter">
        <source></source>
        <translation>检测后静音</translation>
    </message>
    <message id="ID_Host_Figure_MutedBefore">
        <source></source>
        <translation>检测前静音</translation>
    </message>
    <message id="ID_Host_Figure_NoiseFloor">
        <source></source>
        <translation>底噪</translation>
    </message>
    <message id="ID_Host_Figure_OneWayDelay">
        <source></source>
        <translation>单向延迟（往返的一半）</translation>
    </message>
    <message id="ID_Host_Figure_Peak">
        <source></source>
        <translation>最大音量</translation>
    </message>
    <message id="ID_Host_Figure_Pictures">
        <source></source>
        <translation>画面数</translation>
    </message>
    <message id="ID_Host_Figure_Program">
        <source></source>
        <translation>使用它的程序</translation>
    </message>
    <message id="ID_Host_Figure_Rate">
        <source></source>
        <translation>帧率</translation>
    </message>
    <message id="ID_Host_Figure_Seconds">
        <source></source>
        <translation>测量时长</translation>
    </message>
    <message id="ID_Host_Figure_Sent">
        <source></source>
        <translation>已发送的探测包</translation>
    </message>
    <message id="ID_Host_Figure_SoundHeard">
        <source></source>
        <translation>收到声音</translation>
    </message>
    <message id="ID_Host_Figure_SoundPlayed">
        <source></source>
        <translation>播放的声音</translation>
    </message>
    <message id="ID_Host_Figure_VolumeAfter">
        <source></source>
        <translation>检测后音量</translation>
    </message>
    <message id="ID_Host_Figure_VolumeBefore">
        <source></source>
        <translation>检测前音量</translation>
    </message>
    <message id="ID_Host_Figure_Width">
        <source></source>
        <translation>画面宽度</translation>
    </message>
    <message id="ID_Host_File_IsFolder">
        <source></source>
        <translation>这是文件夹；请指定其中的文件</translation>
    </message>
    <message id="ID_Host_File_NameOther">
        <source></source>
        <translation>%1；请指定其他文件</translation>
    </message>
    <message id="ID_Host_File_NoFolder">
        <source></source>
        <translation>文件夹 %1 不存在；请创建它，或指定其他文件</translation>
    </message>
    <message id="ID_Host_File_NoObject">
        <source></source>
        <translation>文档不是对象</translation>
    </message>
    <message id="ID_Host_File_NoReport">
        <source></source>
        <translation>%1 不是 JSON 格式的报告（%2）；请指定由检测生成的报告</translation>
    </message>
    <message id="ID_Host_File_NoRight">
        <source></source>
        <translation>您没有该位置的写入权限；请指定其他文件</translation>
    </message>
    <message id="ID_Host_File_NotOrdinary">
        <source></source>
        <translation>这不是普通文件；请指定其他文件</translation>
    </message>
    <message id="ID_Host_File_NotRead">
        <source></source>
        <translation>无法读取 %1：%2；请指定由检测生成的报告</translation>
    </message>
    <message id="ID_Host_File_NotWritten">
        <source></source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message id="ID_Host_File_TooLarge">
        <source></source>
        <translation>文件过大</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodPicture">
        <source></source>
        <translation>回答“看不到”，但有动态画面。</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodSound">
        <source></source>
        <translation>回答“听不到”，但麦克风收到了声音。</translation>
    </message>
    <message id="ID_Host_Flag_NoToRightSound">
        <source></source>
        <translation>回答“听不到”，但选对了声音。</translation>
    </message>
    <message id="ID_Host_Flag_YesToBlackPicture">
        <source></source>
        <translation>画面为黑屏，却回答“能看到”。</translation>
    </message>
    <message id="ID_Host_Flag_YesToFrozenPicture">
        <source></source>
        <translation>画面静止不动，却回答“能看到”。</translation>
    </message>
    <message id="ID_Host_Flag_YesToMutedSpeaker">
        <source></source>
        <translation>扬声器已静音，却回答“能听到”。</translation>
    </message>
    <message id="ID_Host_Flag_YesToSilence">
        <source></source>
        <translation>麦克风没有收到声音，却回答“能听到”。</translation>
    </message>
    <message id="ID_Host_Flag_YesToWrongSound">
        <source></source>
        <translation>回答“能听到”，但没有选对声音。</translation>
    </message>
    <message id="ID_Host_Flag_YesWithoutPictures">
        <source></source>
        <translation>没有画面，却回答“能看到”。</translation>
    </message>
    <message id="ID_Host_Grade">
        <source></source>
        <translation>网络质量</translation>
    </message>
    <message id="ID_Host_Grade_Fair">
        <source></source>
        <translation>一般</translation>
    </message>
    <message id="ID_Host_Grade_FairUpTo">
        <source></source>
        <translation>%1 以内为一般</translation>
    </message>
    <message id="ID_Host_Grade_Good">
        <source></source>
        <translation>良好</translation>
    </message>
    <message id="ID_Host_Grade_GoodUpTo">
        <source></source>
        <translation>%1 以内为良好</translation>
    </message>
    <message id="ID_Host_Grade_Poor">
        <source></source>
        <translation>较差</translation>
    </message>
    <message id="ID_Host_Help_Arguments">
        <source></source>
        <translation>参数：</translation>
    </message>
    <message id="ID_Host_Help_Check">
        <source></source>
        <translation>在线上课前检测网络、摄像头、扬声器和麦克风。</translation>
    </message>
    <message id="ID_Host_Help_Commands">
        <source></source>
        <translation>命令：</translation>
    </message>
    <message id="ID_Host_Help_Devices">
        <source></source>
        <translation>列出摄像头、麦克风和扬声器及其状态。退出代码 0：列表完整（即使没有找到设备）；69：摄像头服务或声音服务没有运行或没有响应。</translation>
    </message>
    <message id="ID_Host_Help_ExitCodes">
        <source></source>
        <translation>退出码：</translation>
    </message>
    <message id="ID_Host_Help_File">
        <source></source>
        <translation>由检测生成的报告；- 表示标准输入。省略时：最近一次检测的报告。</translation>
    </message>
    <message id="ID_Host_Help_History">
        <source></source>
        <translation>列出以前的检测及其结果和报告。</translation>
    </message>
    <message id="ID_Host_Help_Network">
        <source></source>
        <translation>测量延迟和丢包率，并实时输出数值。</translation>
    </message>
    <message id="ID_Host_Help_NoCommand">
        <source></source>
        <translation>不带命令时打开检测。每个命令都有各自的 --help。</translation>
    </message>
    <message id="ID_Host_Help_Options">
        <source></source>
        <translation>选项：</translation>
    </message>
    <message id="ID_Host_Help_Report">
        <source></source>
        <translation>以文本、HTML 或 JSON 显示以往检测的报告，或将多份报告汇总成一张表。</translation>
    </message>
    <message id="ID_Host_Help_Serve">
        <source></source>
        <translation>作为小型 STUN 服务器应答其他电脑的测量，直到被停止。</translation>
    </message>
    <message id="ID_Host_Help_Usage">
        <source></source>
        <translation>用法：%1</translation>
    </message>
    <message id="ID_Host_Help_UsageOptions">
        <source></source>
        <translation>[选项]</translation>
    </message>
    <message id="ID_Host_History_NoReport">
        <source></source>
        <translation>还没有以前检测的报告；请运行检测，或指定报告文件（FILE）</translation>
    </message>
    <message id="ID_Host_History_None">
        <source></source>
        <translation>没有以前的检测。</translation>
    </message>
    <message id="ID_Host_Language_Unknown">
        <source></source>
        <translation>--language %1：没有这种语言的文本；请从以下语言中选择：%2</translation>
    </message>
    <message id="ID_Host_LastGoodRun">
        <source></source>
        <translation>上次全部正常的检测</translation>
    </message>
    <message id="ID_Host_LastGoodRun_None">
        <source></source>
        <translation>此前没有全部正常的检测。</translation>
    </message>
    <message id="ID_Host_MeasuringFailed">
        <source></source>
        <translation>测量失败：%1</translation>
    </message>
    <message id="ID_Host_Network_Ends">
        <source></source>
        <translation>服务器 %1，本机 %2</translation>
    </message>
    <message id="ID_Host_Network_Figures">
        <source></source>
        <translation>延迟 %1 ms，抖动 %2 ms，丢包率 %3%，已发送 %4，已应答 %5：%6</translation>
    </message>
    <message id="ID_Host_Network_NameServer">
        <source></source>
        <translation>未测量：没有服务器；请用 --server、%1 或在 %2 中指定</translation>
    </message>
    <message id="ID_Host_Network_NoAnswer">
        <source></source>
        <translation>没有应答，丢包率 %1%，已发送 %2，已应答 %3</translation>
    </message>
    <message id="ID_Host_Network_NoRoute">
        <source></source>
        <translation>没有到服务器的路由，丢包 %1%，已发送 %2，已应答 %3</translation>
    </message>
    <message id="ID_Host_Network_NoSuchServer">
        <source></source>
        <translation>没有这个服务器，丢包率 %1%，已发送 %2，已应答 %3</translation>
    </message>
    <message id="ID_Host_Network_Refused">
        <source></source>
        <translation>服务器拒绝，丢包 %1%，已发送 %2，已应答 %3</translation>
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
        <translation>未测量：%1</translation>
    </message>
    <message id="ID_Host_Option_Account">
        <source></source>
        <translation>要显示的账号；默认为系统用户。</translation>
    </message>
    <message id="ID_Host_Option_Cdn">
        <source></source>
        <translation>要显示的 CDN。</translation>
    </message>
    <message id="ID_Host_Option_Count">
        <source></source>
        <translation>得到 N 个数值后结束；否则命令一直运行，直到被停止。</translation>
    </message>
    <message id="ID_Host_Option_Diagnose">
        <source></source>
        <translation>像 --unattended 一样测量，并把报告、设备、版本和日志打包到 FILE.zip，供查找原因的人使用。没有 --redact 时，不包含姓名和地址。</translation>
    </message>
    <message id="ID_Host_Option_FilesFrom">
        <source></source>
        <translation>同时从 FILE 读取报告的名称，每行一个；- 表示标准输入。</translation>
    </message>
    <message id="ID_Host_Option_Format">
        <source></source>
        <translation>text（默认）、html 或 json；报告很多时用 room（表格）、map（每份报告一格的页面）、csv 或 jsonl。</translation>
    </message>
    <message id="ID_Host_Option_Help">
        <source></source>
        <translation>显示此帮助。</translation>
    </message>
    <message id="ID_Host_Option_Json">
        <source></source>
        <translation>输出 JSON 而不是表格。</translation>
    </message>
    <message id="ID_Host_Option_Language">
        <source></source>
        <translation>文本的语言，例如 en 或 zh_CN；默认为系统语言。</translation>
    </message>
    <message id="ID_Host_Option_Loop">
        <source></source>
        <translation>与 --unattended 一起使用：还会在选中的扬声器上播放一秒钟轻微的上升音，并用选中的麦克风寻找它。会发出声音。</translation>
    </message>
    <message id="ID_Host_Option_Nickname">
        <source></source>
        <translation>要显示的昵称；默认为系统用户。</translation>
    </message>
    <message id="ID_Host_Option_Platform">
        <source></source>
        <translation>要检测的设备：devices（本机设备，默认）或 scripted（脚本模拟）。</translation>
    </message>
    <message id="ID_Host_Option_Port">
        <source></source>
        <translation>应答所用的 UDP 端口；默认为 3478，0 表示任选空闲端口。</translation>
    </message>
    <message id="ID_Host_Option_Quiet">
        <source></source>
        <translation>检测未通过时不打开结果窗口。</translation>
    </message>
    <message id="ID_Host_Option_Redact">
        <source></source>
        <translation>要去除的内容：none（不去除，默认）、personal（去除地址、名称和账号）或 hash（替换为短代码）。</translation>
    </message>
    <message id="ID_Host_Option_Report">
        <source></source>
        <translation>将报告写入 FILE 而不是默认位置；扩展名（.json、.html 或 .txt）决定格式，- 表示标准输出，为 JSON。</translation>
    </message>
    <message id="ID_Host_Option_ReportTokenFile">
        <source></source>
        <translation>存放报告服务器所需令牌的文件。只有您本人或用户组可以读取。</translation>
    </message>
    <message id="ID_Host_Option_ReportUrl">
        <source></source>
        <translation>发送报告及其代码的地址。不带 --redact 时，其中不含姓名和地址。</translation>
    </message>
    <message id="ID_Host_Option_Results">
        <source></source>
        <translation>每次变化后，另将原始结果以 JSON 写入 FILE；- 表示标准输出，在结束时写入。</translation>
    </message>
    <message id="ID_Host_Option_Scenario">
        <source></source>
        <translation>模拟设备所用的脚本：一个文件，或内置脚本的名称，例如 all-well。隐含 --platform scripted。</translation>
    </message>
    <message id="ID_Host_Option_Server">
        <source></source>
        <translation>测量延迟和丢包率所用的 STUN 服务器，也可写作 stun:HOST:PORT。没有端口时查询该域名的 DNS 记录（_stun._udp），否则端口为 3478。也可用 ENVCHECK_SERVER 或配置文件指定。未指定服务器时不测量网络，由本机自己应答。</translation>
    </message>
    <message id="ID_Host_Option_Tour">
        <source></source>
        <translation>自动走完所有步骤，并把每一步的画面保存到 FOLDER。</translation>
    </message>
    <message id="ID_Host_Option_Unattended">
        <source></source>
        <translation>不打开窗口、无需有人在场即可测量；--json 文件（- 表示标准输出）写入报告。退出代码：0 正常工作，1 需要处理，69 缺少服务或服务器。</translation>
    </message>
    <message id="ID_Host_Option_Verbose">
        <source></source>
        <translation>同时将日志写到终端。</translation>
    </message>
    <message id="ID_Host_Option_Version">
        <source></source>
        <translation>显示版本。</translation>
    </message>
    <message id="ID_Host_Outcome_BrokenOff">
        <source></source>
        <translation>无人值守：测量完成前已结束</translation>
    </message>
    <message id="ID_Host_Outcome_Failed">
        <source></source>
        <translation>已完成，但有问题</translation>
    </message>
    <message id="ID_Host_Outcome_Faulty">
        <source></source>
        <translation>无人值守：有项目需要处理</translation>
    </message>
    <message id="ID_Host_Outcome_LeftEarly">
        <source></source>
        <translation>中途离开</translation>
    </message>
    <message id="ID_Host_Outcome_Passed">
        <source></source>
        <translation>全部正常</translation>
    </message>
    <message id="ID_Host_Outcome_PutOut">
        <source></source>
        <translation>课堂结束了会话</translation>
    </message>
    <message id="ID_Host_Outcome_Unavailable">
        <source></source>
        <translation>无人值守：缺少某项服务，因此未能测量全部项目</translation>
    </message>
    <message id="ID_Host_Outcome_Works">
        <source></source>
        <translation>无人值守：测量的各项均正常工作</translation>
    </message>
    <message id="ID_Host_OutputNotWritten">
        <source></source>
        <translation>无法写入输出；请检查磁盘是否已满</translation>
    </message>
    <message id="ID_Host_Reason_Absent">
        <source></source>
        <translation>没有设备</translation>
    </message>
    <message id="ID_Host_Reason_Busy">
        <source></source>
        <translation>设备被其他程序占用</translation>
    </message>
    <message id="ID_Host_Reason_Denied">
        <source></source>
        <translation>系统拒绝访问</translation>
    </message>
    <message id="ID_Host_Reason_Failed">
        <source></source>
        <translation>设备出现故障</translation>
    </message>
    <message id="ID_Host_Reason_Hung">
        <source></source>
        <translation>设备没有响应</translation>
    </message>
    <message id="ID_Host_Reason_Muted">
        <source></source>
        <translation>设备已静音</translation>
    </message>
    <message id="ID_Host_Reason_NoAnswer">
        <source></source>
        <translation>服务器没有响应</translation>
    </message>
    <message id="ID_Host_Reason_NoRoute">
        <source></source>
        <translation>没有到服务器的路由</translation>
    </message>
    <message id="ID_Host_Reason_NotBuilt">
        <source></source>
        <translation>不支持此系统</translation>
    </message>
    <message id="ID_Host_Reason_NotOffered">
        <source></source>
        <translation>此引擎无法做到</translation>
    </message>
    <message id="ID_Host_Reason_NotRecorded">
        <source></source>
        <translation>引擎不记录此项</translation>
    </message>
    <message id="ID_Host_Reason_Off">
        <source></source>
        <translation>设备已关闭</translation>
    </message>
    <message id="ID_Host_Reason_Refused">
        <source></source>
        <translation>服务器拒绝了请求</translation>
    </message>
    <message id="ID_Host_Reason_Scripted">
        <source></source>
        <translation>脚本模拟的设备没有此数值</translation>
    </message>
    <message id="ID_Host_Reason_ServerLost">
        <source></source>
        <translation>声音服务没有运行</translation>
    </message>
    <message id="ID_Host_Reason_ServerSilent">
        <source></source>
        <translation>声音服务没有响应</translation>
    </message>
    <message id="ID_Host_Reason_Silent">
        <source></source>
        <translation>设备没有任何输出</translation>
    </message>
    <message id="ID_Host_Reason_StepNotOpened">
        <source></source>
        <translation>未打开此步骤</translation>
    </message>
    <message id="ID_Host_Reason_Unreadable">
        <source></source>
        <translation>摄像头未发送可显示的格式</translation>
    </message>
    <message id="ID_Host_Reason_VolumeZero">
        <source></source>
        <translation>音量为 0</translation>
    </message>
    <message id="ID_Host_Redacted_Hash">
        <source></source>
        <translation>地址、名称和账号已替换为短代码。</translation>
    </message>
    <message id="ID_Host_Redacted_Personal">
        <source></source>
        <translation>已去除地址、名称和账号。</translation>
    </message>
    <message id="ID_Host_Remedy_Clipping">
        <source></source>
        <translation>麦克风音量过大，声音失真，请调低麦克风音量。</translation>
    </message>
    <message id="ID_Host_Remedy_Hum">
        <source></source>
        <translation>麦克风有电流嗡声，请换一个插口或线缆，并让它远离电源适配器。</translation>
    </message>
    <message id="ID_Host_Remedy_LoopNotHeard">
        <source></source>
        <translation>麦克风没有听到扬声器，请调高两者的音量，并确认它们属于同一副耳机或在同一个房间。</translation>
    </message>
    <message id="ID_Host_Remedy_ServerSilent">
        <source></source>
        <translation>系统的视频和声音服务没有响应，请注销后重新登录，或重启电脑。</translation>
    </message>
    <message id="ID_Host_ReportIsIn">
        <source></source>
        <translation>报告位于 %1</translation>
    </message>
    <message id="ID_Host_Report_Answer">
        <source></source>
        <translation>回答</translation>
    </message>
    <message id="ID_Host_Report_BadTime">
        <source></source>
        <translation>必须是时间，例如 2026-03-01T08:30:00Z</translation>
    </message>
    <message id="ID_Host_Report_Causes">
        <source></source>
        <translation>原因</translation>
    </message>
    <message id="ID_Host_Report_Computer">
        <source></source>
        <translation>计算机</translation>
    </message>
    <message id="ID_Host_Report_Contradiction">
        <source></source>
        <translation>矛盾</translation>
    </message>
    <message id="ID_Host_Report_Count">
        <source></source>
        <translation>报告</translation>
    </message>
    <message id="ID_Host_Report_Device">
        <source></source>
        <translation>设备</translation>
    </message>
    <message id="ID_Host_Report_Id">
        <source></source>
        <translation>报告编号</translation>
    </message>
    <message id="ID_Host_Report_Later">
        <source></source>
        <translation>之后的测量值</translation>
    </message>
    <message id="ID_Host_Report_Measurements">
        <source></source>
        <translation>测量值</translation>
    </message>
    <message id="ID_Host_Report_Notice">
        <source></source>
        <translation>说明</translation>
    </message>
    <message id="ID_Host_Report_OtherFormat">
        <source></source>
        <translation>这不是检测报告</translation>
    </message>
    <message id="ID_Host_Report_OtherVersion">
        <source></source>
        <translation>版本为 %1，而本程序读取版本 %2</translation>
    </message>
    <message id="ID_Host_Report_Outcome">
        <source></source>
        <translation>总体结果</translation>
    </message>
    <message id="ID_Host_Report_Program">
        <source></source>
        <translation>程序</translation>
    </message>
    <message id="ID_Host_Report_Result">
        <source></source>
        <translation>检测结果</translation>
    </message>
    <message id="ID_Host_Report_RightSound">
        <source></source>
        <translation>选对声音</translation>
    </message>
    <message id="ID_Host_Report_Scripted">
        <source></source>
        <translation>所用设备为脚本模拟，并非本机设备。</translation>
    </message>
    <message id="ID_Host_Report_Summary">
        <source></source>
        <translation>摘要</translation>
    </message>
    <message id="ID_Host_Report_System">
        <source></source>
        <translation>本机与账号</translation>
    </message>
    <message id="ID_Host_Report_Time">
        <source></source>
        <translation>时间</translation>
    </message>
    <message id="ID_Host_Report_Title">
        <source></source>
        <translation>系统检测报告</translation>
    </message>
    <message id="ID_Host_Serve_Answering">
        <source></source>
        <translation>正在 UDP 端口 %1 上应答。其他电脑可用 --server stun:HOST:%1 测量到本机的网络</translation>
    </message>
    <message id="ID_Host_Serve_NoPort">
        <source></source>
        <translation>无法在 UDP 端口 %1 上应答：%2。请用 --port 选择其他端口</translation>
    </message>
    <message id="ID_Host_Serve_NotBuilt">
        <source></source>
        <translation>serve 需要构建时包含真实设备的程序（ENVCHECK_DEVICES）</translation>
    </message>
    <message id="ID_Host_State_Absent">
        <source></source>
        <translation>未连接</translation>
    </message>
    <message id="ID_Host_State_Busy">
        <source></source>
        <translation>被占用</translation>
    </message>
    <message id="ID_Host_State_Denied">
        <source></source>
        <translation>访问被拒绝</translation>
    </message>
    <message id="ID_Host_State_Failed">
        <source></source>
        <translation>故障</translation>
    </message>
    <message id="ID_Host_State_Hung">
        <source></source>
        <translation>没有响应</translation>
    </message>
    <message id="ID_Host_State_Off">
        <source></source>
        <translation>已关闭</translation>
    </message>
    <message id="ID_Host_State_Ready">
        <source></source>
        <translation>就绪</translation>
    </message>
    <message id="ID_Host_State_Silent">
        <source></source>
        <translation>没有输出</translation>
    </message>
    <message id="ID_Host_State_Working">
        <source></source>
        <translation>正常</translation>
    </message>
    <message id="ID_Host_Takes_Ending">
        <source></source>
        <translation>以 %1 结尾的名称，或表示标准输出的 -</translation>
    </message>
    <message id="ID_Host_Takes_FileEnding">
        <source></source>
        <translation>以 %1 结尾的文件名</translation>
    </message>
    <message id="ID_Host_Takes_Number">
        <source></source>
        <translation>%1 到 %2 之间的数字</translation>
    </message>
    <message id="ID_Host_Takes_OneOf">
        <source></source>
        <translation>以下之一：%1</translation>
    </message>
    <message id="ID_Host_Takes_Server">
        <source></source>
        <translation>HOST 或 HOST:PORT，前面可加 stun:，例如 stun:stun.example.org:3478</translation>
    </message>
    <message id="ID_Host_Takes_WebAddress">
        <source></source>
        <translation>http 或 https 地址</translation>
    </message>
    <message id="ID_Host_Token_NoToken">
        <source></source>
        <translation>%1：这不是令牌；它应为一行，由字母、数字和 - . _ ~ + / 组成，末尾可有 =</translation>
    </message>
    <message id="ID_Host_Token_NotEncrypted">
        <source></source>
        <translation>%1：令牌只通过 https 发送；请使用 https 地址，或不用令牌</translation>
    </message>
    <message id="ID_Host_Token_NotRead">
        <source></source>
        <translation>无法读取 %1：%2；请指定存放报告服务器令牌的文件</translation>
    </message>
    <message id="ID_Host_Token_Open">
        <source></source>
        <translation>%1 含有令牌，而所有用户都能读写它；请用以下命令更改：chmod o= %1</translation>
    </message>
    <message id="ID_Host_Tour_Done">
        <source></source>
        <translation>已将 %1 张画面保存到 %2；可在 index.html 中查看全部。</translation>
    </message>
    <message id="ID_Host_Tour_NoFolder">
        <source></source>
        <translation>--tour %1：无法创建此文件夹；请指定其他文件夹</translation>
    </message>
    <message id="ID_Host_Tour_NotWritten">
        <source></source>
        <translation>%1：%2；请指定其他文件夹</translation>
    </message>
    <message id="ID_Host_Upload_Kept">
        <source></source>
        <translation>报告未送达 %1：%2。报告已保留，下次运行时会再次发送。</translation>
    </message>
    <message id="ID_Host_Upload_NoAnswer">
        <source></source>
        <translation>未及时应答</translation>
    </message>
    <message id="ID_Host_Upload_Refused">
        <source></source>
        <translation>%1 不接受该报告：%2。不会再次发送。</translation>
    </message>
    <message id="ID_Host_Upload_Sending">
        <source></source>
        <translation>正在将报告发送到 %1…</translation>
    </message>
    <message id="ID_Host_Upload_WrongToken">
        <source></source>
        <translation>缺少令牌或令牌错误（HTTP %1）</translation>
    </message>
    <message id="ID_Host_Usage_EmptyName">
        <source></source>
        <translation>--%1 的名称不能为空</translation>
    </message>
    <message id="ID_Host_Usage_ExtraArgument">
        <source></source>
        <translation>多余的参数“%1”：请参阅 --help</translation>
    </message>
    <message id="ID_Host_Usage_LeaveOneOut">
        <source></source>
        <translation>%1 不能与 %2 同时使用：请去掉其中一个</translation>
    </message>
    <message id="ID_Host_Usage_Needs">
        <source></source>
        <translation>--%1 需要 --%2：请加上它，或去掉 --%1</translation>
    </message>
    <message id="ID_Host_Usage_OtherCommand">
        <source></source>
        <translation>--%1 不能用于 %2：请参阅 --help</translation>
    </message>
    <message id="ID_Host_Usage_SamePlace">
        <source></source>
        <translation>--%1 和 --%2 会写入同一位置（%3）：请指定两个不同的位置</translation>
    </message>
    <message id="ID_Host_Usage_SeeHelp">
        <source></source>
        <translation>%1请参阅 --help。</translation>
    </message>
    <message id="ID_Host_Usage_Takes">
        <source></source>
        <translation>--%1 %2：应为 %3</translation>
    </message>
    <message id="ID_Host_Usage_TheCheck">
        <source></source>
        <translation>检测</translation>
    </message>
    <message id="ID_Host_Usage_UnknownCommand">
        <source></source>
        <translation>未知命令“%1”：请参阅 --help</translation>
    </message>
    <message id="ID_Host_Verdict_Faulty">
        <source></source>
        <translation>需要处理</translation>
    </message>
    <message id="ID_Host_Verdict_Heard">
        <source></source>
        <translation>听到</translation>
    </message>
    <message id="ID_Host_Verdict_NotHeard">
        <source></source>
        <translation>未听到</translation>
    </message>
    <message id="ID_Host_Verdict_NotTried">
        <source></source>
        <translation>未尝试</translation>
    </message>
    <message id="ID_Host_Verdict_Unmeasured">
        <source></source>
        <translation>未测量</translation>
    </message>
    <message id="ID_Host_Verdict_Works">
        <source></source>
        <translation>正常工作</translation>
    </message>
    <message id="ID_Host_Yes">
        <source></source>
        <translation>是</translation>
    </message>
    <message id="ID_Kestrel_SystemTesting">
        <source></source>
        <translation>系统检测</translation>
    </message>
    <message id="ID_MessageBox_Critical">
        <source></source>
        <translation>错误</translation>
    </message>
    <message id="ID_MessageBox_Information">
        <source></source>
        <translation>提示</translation>
    </message>
    <message id="ID_MessageBox_Question">
        <source></source>
        <translation>询问</translation>
    </message>
    <message id="ID_MessageBox_Warning">
        <source></source>
        <translation>警告</translation>
    </message>
    <message id="ID_Microphone">
        <source></source>
        <translation>麦克风：</translation>
    </message>
    <message id="ID_MicrophonePage_2">
        <source></source>
        <translation>2. 请取消麦克风静音：检查开关或静音键。</translation>
    </message>
    <message id="ID_MicrophonePage_3">
        <source></source>
        <translation>3. 请调高音量，并靠近麦克风说话。</translation>
    </message>
    <message id="ID_MicrophonePage_4">
        <source></source>
        <translation>4. 请在系统的隐私设置中允许使用麦克风。</translation>
    </message>
    <message id="ID_MicrophonePage_Again">
        <source></source>
        <translation>重录</translation>
    </message>
    <message id="ID_MicrophonePage_CanHearOrSee">
        <source></source>
        <translation>是，能听到也能看到</translation>
    </message>
    <message id="ID_MicrophonePage_CanNotHearOrSee">
        <source></source>
        <translation>否，听不到或看不到</translation>
    </message>
    <message id="ID_MicrophonePage_ChoseNo">
        <source></source>
        <translation>听不到自己的声音，或音量条不动</translation>
    </message>
    <message id="ID_MicrophonePage_ClickHere">
        <source></source>
        <translation>听不到自己或音量条不动？请点击这里</translation>
    </message>
    <message id="ID_MicrophonePage_DisabledWillMakeMicrophoneUnusable">
        <source></source>
        <translation>麦克风已关闭，请在此处选择或将其启用。</translation>
    </message>
    <message id="ID_MicrophonePage_MayNoisy">
        <source></source>
        <translation>音量超过 100 时可能产生杂音。</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneDisabled">
        <source></source>
        <translation>麦克风已关闭或被禁用</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneTest">
        <source></source>
        <translation>请点击“录音”，大声从 1 数到 10，听听自己的声音，并观察绿色音量条是否跳动。</translation>
    </message>
    <message id="ID_MicrophonePage_NoMicrophoneWasDetected">
        <source></source>
        <translation>未找到麦克风</translation>
    </message>
    <message id="ID_MicrophonePage_NoVoiceWasRecorded">
        <source></source>
        <translation>麦克风没有收到声音</translation>
    </message>
    <message id="ID_MicrophonePage_OfS">
        <source></source>
        <translation>%1 秒</translation>
    </message>
    <message id="ID_MicrophonePage_Recording">
        <source></source>
        <translation>请说话</translation>
    </message>
    <message id="ID_Microphone_Check">
        <source></source>
        <translation>麦克风</translation>
    </message>
    <message id="ID_NetworkPage_1">
        <source></source>
        <translation>1. 请靠近无线路由器，或改用网线连接。</translation>
    </message>
    <message id="ID_NetworkPage_2">
        <source></source>
        <translation>2. 请停止下载和播放视频，包括其他设备上的。</translation>
    </message>
    <message id="ID_NetworkPage_3">
        <source></source>
        <translation>3. 请关闭 VPN 和代理，或重启路由器。</translation>
    </message>
    <message id="ID_NetworkPage_Account">
        <source></source>
        <translation>账号：</translation>
    </message>
    <message id="ID_NetworkPage_AvailableCacheSpace">
        <source></source>
        <translation>可用缓存空间：</translation>
    </message>
    <message id="ID_NetworkPage_CPU">
        <source></source>
        <translation>处理器：</translation>
    </message>
    <message id="ID_NetworkPage_ClickHere">
        <source></source>
        <translation>网络缓慢或不稳定？请点击这里</translation>
    </message>
    <message id="ID_NetworkPage_Client">
        <source></source>
        <translation>客户端：</translation>
    </message>
    <message id="ID_NetworkPage_LostRate">
        <source></source>
        <translation>丢包率：</translation>
    </message>
    <message id="ID_NetworkPage_NetworkDelay">
        <source></source>
        <translation>网络延迟：</translation>
    </message>
    <message id="ID_NetworkPage_NetworkSlowOrUnstable">
        <source></source>
        <translation>网络缓慢或不稳定</translation>
    </message>
    <message id="ID_NetworkPage_OS">
        <source></source>
        <translation>操作系统：</translation>
    </message>
    <message id="ID_NewLogin_Server">
        <source></source>
        <translation>服务器：</translation>
    </message>
    <message id="ID_Next">
        <source></source>
        <translation>下一步</translation>
    </message>
    <message id="ID_Nickname_NetworkPage">
        <source></source>
        <translation>昵称：</translation>
    </message>
    <message id="ID_OK">
        <source></source>
        <translation>完成</translation>
    </message>
    <message id="ID_Record">
        <source></source>
        <translation>录音</translation>
    </message>
    <message id="ID_Skip">
        <source></source>
        <translation>跳过</translation>
    </message>
    <message id="ID_Volume">
        <source></source>
        <translation>音量：</translation>
    </message>
    <message id="ID_WelcomePage_StartTest">
        <source></source>
        <translation>开始检测</translation>
    </message>
    <message id="ID_WelcomePage_Welcome">
        <source></source>
        <translation>欢迎来到在线课堂</translation>
    </message>
    <message id="ID_hardwaremgrinterface_NoSpeakerFound">
        <source></source>
        <translation>未找到扬声器</translation>
    </message>
    <message id="ID_lumcamera_NoWebcamFound">
        <source></source>
        <translation>未找到摄像头</translation>
    </message>
    <message id="ID_Host_Reason_NoServer">
        <source></source>
        <translation>未设置服务器</translation>
    </message>
    <message id="ID_Host_Reason_NoSuchHost">
        <source></source>
        <translation>找不到该服务器名称</translation>
    </message>
    <message id="ID_Host_Remedy">
        <source></source>
        <translation>解决方法</translation>
    </message>
    <message id="ID_Host_Remedy_NoServer">
        <source></source>
        <translation>由于未设置服务器，只测量了本机，请向学校询问服务器，并用 --server 或在配置文件中设置。</translation>
    </message>
    <message id="ID_Host_Remedy_NoAnswer">
        <source></source>
        <translation>服务器没有响应，请确认已联网，并且防火墙没有拦截 UDP。</translation>
    </message>
    <message id="ID_Host_Remedy_NoSuchHost">
        <source></source>
        <translation>找不到该服务器名称，请检查拼写，并确认已联网。</translation>
    </message>
    <message id="ID_Host_Remedy_Slow">
        <source></source>
        <translation>连接速度慢，请改用网线或靠近无线路由器，并停止下载和其他通话。</translation>
    </message>
    <message id="ID_Host_Remedy_Lossy">
        <source></source>
        <translation>传输中丢失的数据过多，请改用网线或靠近无线路由器。</translation>
    </message>
    <message id="ID_Host_Remedy_LeftTooSoon">
        <source></source>
        <translation>离开这一步时还没有测到数据，请在该步骤等到数值出现。</translation>
    </message>
    <message id="ID_Host_Remedy_Absent">
        <source></source>
        <translation>没有找到设备，请接好或打开设备，然后重新检测。</translation>
    </message>
    <message id="ID_Host_Remedy_Off">
        <source></source>
        <translation>设备在列表中已关闭，请在列表中选择一个设备。</translation>
    </message>
    <message id="ID_Host_Remedy_Starting">
        <source></source>
        <translation>设备当时还在启动，请多等一会儿再回答。</translation>
    </message>
    <message id="ID_Host_Remedy_Busy">
        <source></source>
        <translation>其他程序正在使用该设备，请关闭那个程序后重新检测。</translation>
    </message>
    <message id="ID_Host_Remedy_Denied">
        <source></source>
        <translation>系统拒绝访问该设备，请在隐私设置中允许。</translation>
    </message>
    <message id="ID_Host_Remedy_Hung">
        <source></source>
        <translation>设备没有响应，请重新插拔，或重启电脑。</translation>
    </message>
    <message id="ID_Host_Remedy_Stalled">
        <source></source>
        <translation>摄像头没有传来画面，请重新插拔，或选择其他摄像头。</translation>
    </message>
    <message id="ID_Host_Remedy_Black">
        <source></source>
        <translation>画面是黑的，请打开镜头盖并开灯。</translation>
    </message>
    <message id="ID_Host_Remedy_Frozen">
        <source></source>
        <translation>画面静止不动，请重新插拔摄像头。</translation>
    </message>
    <message id="ID_Host_Remedy_Unplugged">
        <source></source>
        <translation>设备在检测过程中断开了，请重新连接并检查线缆。</translation>
    </message>
    <message id="ID_Host_Remedy_NotBuilt">
        <source></source>
        <translation>此程序无法在此系统上使用这类设备，请在其他程序中试用。</translation>
    </message>
    <message id="ID_Host_Remedy_ServerLost">
        <source></source>
        <translation>系统的视频和声音服务已停止，请注销后重新登录，或重启电脑。</translation>
    </message>
    <message id="ID_Host_Remedy_Failed">
        <source></source>
        <translation>设备出现故障，请重新连接，或换一个设备。</translation>
    </message>
    <message id="ID_Host_Remedy_Unreadable">
        <source></source>
        <translation>摄像头未发送可在此处显示的格式，请选择其他摄像头，或在其设置中选择其他格式。</translation>
    </message>
    <message id="ID_Host_Remedy_Silent">
        <source></source>
        <translation>麦克风没有录到声音，请靠近一些说话，检查麦克风开关，或在列表中选择其他麦克风。</translation>
    </message>
    <message id="ID_Host_Remedy_Muted">
        <source></source>
        <translation>设备已静音，请取消静音。</translation>
    </message>
    <message id="ID_Host_Remedy_VolumeZero">
        <source></source>
        <translation>音量为 0，请调高音量。</translation>
    </message>
    <message id="ID_Host_Remedy_WrongSound">
        <source></source>
        <translation>您选择的声音与播放的不同，请调高音量后再听一次。</translation>
    </message>
    <message id="ID_Host_Remedy_NotSeen">
        <source></source>
        <translation>摄像头传来了画面，但您没有看到自己，请确认选中的是哪个摄像头。</translation>
    </message>
    <message id="ID_Host_Remedy_NotHeard">
        <source></source>
        <translation>声音已播放，但您没有听到，请调高音量，并确认选中的是哪个扬声器。</translation>
    </message>
    <message id="ID_Host_Remedy_SelfNotHeard">
        <source></source>
        <translation>麦克风录到了声音，但您没有听到自己，请调高音量，并确认选中的是哪个扬声器。</translation>
    </message>
    <message id="ID_Host_Window_Title">
        <source></source>
        <translation>检测结果</translation>
    </message>
    <message id="ID_Host_Window_Copy">
        <source></source>
        <translation>复制</translation>
    </message>
    <message id="ID_Host_Window_Save">
        <source></source>
        <translation>保存…</translation>
    </message>
    <message id="ID_Host_Window_Open">
        <source></source>
        <translation>打开报告</translation>
    </message>
    <message id="ID_Host_Window_Close">
        <source></source>
        <translation>关闭</translation>
    </message>
    <message id="ID_Host_Window_Copied">
        <source></source>
        <translation>报告已复制。请在关闭此窗口之前粘贴。</translation>
    </message>
    <message id="ID_Host_Window_Saved">
        <source></source>
        <translation>报告已保存到 %1</translation>
    </message>
    <message id="ID_Host_Window_NotWritten">
        <source></source>
        <translation>无法将报告写入 %1。请选择其他位置。</translation>
    </message>
    <message id="ID_Host_Window_NotOpened">
        <source></source>
        <translation>没有程序能打开报告。报告位于 %1</translation>
    </message>
</context>
</TS>
