<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="ID_CameraPage_1">
        <source></source>
        <translation>1. Check that the device is plugged in and chosen in the list.</translation>
    </message>
    <message id="ID_CameraPage_2">
        <source></source>
        <translation>2. Close other programs that use the camera.</translation>
    </message>
    <message id="ID_CameraPage_3">
        <source></source>
        <translation>3. Open the lens cover, or switch the camera on with its key.</translation>
    </message>
    <message id="ID_CameraPage_4">
        <source></source>
        <translation>4. Allow camera access in the system's privacy settings.</translation>
    </message>
    <message id="ID_CameraPage_5">
        <source></source>
        <translation>5. Restart the computer, or try another device.</translation>
    </message>
    <message id="ID_CameraPage_Camera">
        <source></source>
        <translation>Camera:</translation>
    </message>
    <message id="ID_CameraPage_CameraDisabled">
        <source></source>
        <translation>The camera is off or disabled</translation>
    </message>
    <message id="ID_CameraPage_CannotSee">
        <source></source>
        <translation>No, I can't see</translation>
    </message>
    <message id="ID_CameraPage_ClickHere">
        <source></source>
        <translation>Can't see yourself? Click here</translation>
    </message>
    <message id="ID_CameraPage_DisabledWillMakeCameraUnusable">
        <source></source>
        <translation>The camera is off. Choose one here, or enable it.</translation>
    </message>
    <message id="ID_CameraPage_No">
        <source></source>
        <translation>No, I can't</translation>
    </message>
    <message id="ID_CameraPage_NoCameraImageWasDetected">
        <source></source>
        <translation>The camera shows no picture</translation>
    </message>
    <message id="ID_CameraPage_NotDetected">
        <source></source>
        <translation>This check was not answered</translation>
    </message>
    <message id="ID_CameraPage_Yes">
        <source></source>
        <translation>Yes, I can see</translation>
    </message>
    <message id="ID_CameraPage_choseNo">
        <source></source>
        <translation>You can't see yourself</translation>
    </message>
    <message id="ID_Camera_Check">
        <source></source>
        <translation>Camera</translation>
    </message>
    <message id="ID_CheckResultPage_Abnormal">
        <source></source>
        <translation>Failed</translation>
    </message>
    <message id="ID_CheckResultPage_CheckEquipmentAndRetest">
        <source></source>
        <translation>Please fix it and check again.</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentAbnormal">
        <source></source>
        <translation>Something is not working</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentNormal">
        <source></source>
        <translation>Everything works</translation>
    </message>
    <message id="ID_CheckResultPage_Headphone">
        <source></source>
        <translation>Speaker</translation>
    </message>
    <message id="ID_CheckResultPage_Normal">
        <source></source>
        <translation>Passed</translation>
    </message>
    <message id="ID_CheckResultPage_OK">
        <source></source>
        <translation>You are ready for class.</translation>
    </message>
    <message id="ID_CheckResultPage_Redetect">
        <source></source>
        <translation>Retest</translation>
    </message>
    <message id="ID_CheckResultPage_System">
        <source></source>
        <translation>System</translation>
    </message>
    <message id="ID_ContentPage_NotFinishedIfLeave">
        <source></source>
        <translation>The system check is not finished. Do you want to leave it?</translation>
    </message>
    <message id="ID_Engine_BuiltInResponder">
        <source></source>
        <translation>Not measured: no server set</translation>
    </message>
    <message id="ID_Engine_Camera_Absent">
        <source></source>
        <translation>No camera was found.
Connect one to this computer.</translation>
    </message>
    <message id="ID_Engine_Camera_Black">
        <source></source>
        <translation>The picture is black.
Open the cover of the lens, or turn on a light.</translation>
    </message>
    <message id="ID_Engine_Camera_Busy">
        <source></source>
        <translation>Another program is using the camera.
Close that program.</translation>
    </message>
    <message id="ID_Engine_Camera_BusyBy">
        <source></source>
        <translation>%1 is using the camera.
Close that program.</translation>
    </message>
    <message id="ID_Engine_Camera_Denied">
        <source></source>
        <translation>The system denies access to the camera.
Allow it in the privacy settings of the system.</translation>
    </message>
    <message id="ID_Engine_Camera_Failed">
        <source></source>
        <translation>The camera does not work.
Unplug it and plug it in again, or choose another one.</translation>
    </message>
    <message id="ID_Engine_Camera_Hung">
        <source></source>
        <translation>The camera does not answer.
Unplug it and plug it in again, or restart the computer.</translation>
    </message>
    <message id="ID_Engine_Camera_NotBuilt">
        <source></source>
        <translation>This program can't use cameras on this system.
Try yours in another program.</translation>
    </message>
    <message id="ID_Engine_Camera_ServerLost">
        <source></source>
        <translation>The camera service of this computer is not running.
Wait a moment, or restart the computer.</translation>
    </message>
    <message id="ID_Engine_Camera_Stalled">
        <source></source>
        <translation>The camera sends no pictures.
Unplug it and plug it in again, or choose another one.</translation>
    </message>
    <message id="ID_Engine_Camera_Starting">
        <source></source>
        <translation>The camera is starting…</translation>
    </message>
    <message id="ID_Engine_Camera_Unplugged">
        <source></source>
        <translation>The camera was unplugged.
Plug it in again, or choose another one.</translation>
    </message>
    <message id="ID_Engine_Camera_Unreadable">
        <source></source>
        <translation>The camera's pictures cannot be shown here.
Choose another camera, or another format in its settings.</translation>
    </message>
    <message id="ID_Engine_File_BadEnd">
        <source></source>
        <translation>on Windows a name can't end in a dot or a space</translation>
    </message>
    <message id="ID_Engine_File_BadLetter">
        <source></source>
        <translation>on Windows a name can't contain &lt; &gt; : " | ? * or control characters</translation>
    </message>
    <message id="ID_Engine_File_DeadLink">
        <source></source>
        <translation>it is a link that leads nowhere</translation>
    </message>
    <message id="ID_Engine_File_DeviceName">
        <source></source>
        <translation>%1 is the name of a device on Windows</translation>
    </message>
    <message id="ID_Engine_File_DiskSilent">
        <source></source>
        <translation>the disk does not answer</translation>
    </message>
    <message id="ID_Engine_File_ForeignLink">
        <source></source>
        <translation>it is a link that belongs to another user</translation>
    </message>
    <message id="ID_Engine_File_LockHeld">
        <source></source>
        <translation>another program holds its lock file %1</translation>
    </message>
    <message id="ID_Engine_File_LockNotMade">
        <source></source>
        <translation>its lock file can't be created</translation>
    </message>
    <message id="ID_Engine_File_LockNotRegular">
        <source></source>
        <translation>its lock file %1 is not a regular file</translation>
    </message>
    <message id="ID_Engine_File_NoFolder">
        <source></source>
        <translation>its folder can't be created</translation>
    </message>
    <message id="ID_Engine_File_NotMade">
        <source></source>
        <translation>its new content can't be made; is the disk full?</translation>
    </message>
    <message id="ID_Engine_File_NotRegular">
        <source></source>
        <translation>it is not a regular file</translation>
    </message>
    <message id="ID_Engine_File_TooLarge">
        <source></source>
        <translation>it is larger than %1 MiB</translation>
    </message>
    <message id="ID_Engine_File_TooManyChanges">
        <source></source>
        <translation>too many changes wait for the disk</translation>
    </message>
    <message id="ID_Engine_Json_Document">
        <source></source>
        <translation>the document must be an object</translation>
    </message>
    <message id="ID_Engine_Json_Empty">
        <source></source>
        <translation>must not be empty</translation>
    </message>
    <message id="ID_Engine_Json_Flag">
        <source></source>
        <translation>must be true or false</translation>
    </message>
    <message id="ID_Engine_Json_Invalid">
        <source></source>
        <translation>not valid JSON: %1</translation>
    </message>
    <message id="ID_Engine_Json_List">
        <source></source>
        <translation>must be a list</translation>
    </message>
    <message id="ID_Engine_Json_Missing">
        <source></source>
        <translation>is missing</translation>
    </message>
    <message id="ID_Engine_Json_Number">
        <source></source>
        <translation>must be a number</translation>
    </message>
    <message id="ID_Engine_Json_Object">
        <source></source>
        <translation>must be an object</translation>
    </message>
    <message id="ID_Engine_Json_ShortList">
        <source></source>
        <translation>must be a list of at most %1 elements</translation>
    </message>
    <message id="ID_Engine_Json_ShortText">
        <source></source>
        <translation>must be a text of at most %1 characters</translation>
    </message>
    <message id="ID_Engine_Json_Text">
        <source></source>
        <translation>must be a text</translation>
    </message>
    <message id="ID_Engine_Json_Twice">
        <source></source>
        <translation>occurs twice</translation>
    </message>
    <message id="ID_Engine_Json_Unknown">
        <source></source>
        <translation>is not a known field here</translation>
    </message>
    <message id="ID_Engine_Json_WholeNumber">
        <source></source>
        <translation>must be a whole number from %1 to %2</translation>
    </message>
    <message id="ID_Engine_Json_Word">
        <source></source>
        <translation>must be one of %1</translation>
    </message>
    <message id="ID_Engine_Json_WordList">
        <source></source>
        <translation>must be a list of %1</translation>
    </message>
    <message id="ID_Engine_NoCamera">
        <source></source>
        <translation>No camera</translation>
    </message>
    <message id="ID_Engine_NoMicrophone">
        <source></source>
        <translation>No microphone</translation>
    </message>
    <message id="ID_Engine_NoSpeaker">
        <source></source>
        <translation>No speaker found</translation>
    </message>
    <message id="ID_Engine_NoSpeakerSelected">
        <source></source>
        <translation>No speaker selected</translation>
    </message>
    <message id="ID_Engine_NotConnected">
        <source></source>
        <translation>Not connected</translation>
    </message>
    <message id="ID_Engine_Scenario_Base">
        <source></source>
        <translation>must name a bundled scenario</translation>
    </message>
    <message id="ID_Engine_Scenario_Levels">
        <source></source>
        <translation>must be [milliseconds, level]: rising from 0, and a level from 0 to 1</translation>
    </message>
    <message id="ID_Engine_Scenario_NoDevice">
        <source></source>
        <translation>names no %1 of this scenario</translation>
    </message>
    <message id="ID_Engine_Scenario_NoVolume">
        <source></source>
        <translation>a camera has no volume</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRead">
        <source></source>
        <translation>can't be read: %1</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRegular">
        <source></source>
        <translation>not a regular file; name a scenario file</translation>
    </message>
    <message id="ID_Engine_Scenario_SameId">
        <source></source>
        <translation>must be unique in its list</translation>
    </message>
    <message id="ID_Engine_Scenario_TooLarge">
        <source></source>
        <translation>larger than 1 MiB; name a scenario file</translation>
    </message>
    <message id="ID_Engine_Scenario_TooManyDevices">
        <source></source>
        <translation>more than %1 different devices of this kind; plug in one that was there before</translation>
    </message>
    <message id="ID_Engine_Scenario_Unknown">
        <source></source>
        <translation>no such file, and no bundled scenario of this name (there are %1)</translation>
    </message>
    <message id="ID_Engine_SoundNotBuilt">
        <source></source>
        <translation>No sound: this system is not supported</translation>
    </message>
    <message id="ID_Engine_SoundServerLost">
        <source></source>
        <translation>The sound service is not running</translation>
    </message>
    <message id="ID_Engine_SoundServerSilent">
        <source></source>
        <translation>The sound service does not answer</translation>
    </message>
    <message id="ID_Engine_TelephoneQuality">
        <source></source>
        <translation>%1 (telephone quality)</translation>
    </message>
    <message id="ID_HeadsetPage_2">
        <source></source>
        <translation>2. Turn the volume up, and check that the sound is not muted.</translation>
    </message>
    <message id="ID_HeadsetPage_3">
        <source></source>
        <translation>3. Push the plug all the way in, or reconnect Bluetooth.</translation>
    </message>
    <message id="ID_HeadsetPage_4">
        <source></source>
        <translation>4. Choose the same output in the system's sound settings.</translation>
    </message>
    <message id="ID_HeadsetPage_Bubble">
        <source></source>
        <translation>Bubbles</translation>
    </message>
    <message id="ID_HeadsetPage_CanHear">
        <source></source>
        <translation>Yes, I can hear</translation>
    </message>
    <message id="ID_HeadsetPage_CanNotHear">
        <source></source>
        <translation>No, I can't hear</translation>
    </message>
    <message id="ID_HeadsetPage_ChoseWrong">
        <source></source>
        <translation>The right sound was not chosen</translation>
    </message>
    <message id="ID_HeadsetPage_ClickHere">
        <source></source>
        <translation>Can't hear the sound? Click here</translation>
    </message>
    <message id="ID_HeadsetPage_Doorbell">
        <source></source>
        <translation>Doorbell</translation>
    </message>
    <message id="ID_HeadsetPage_Piano">
        <source></source>
        <translation>Piano</translation>
    </message>
    <message id="ID_HeadsetPage_Play">
        <source></source>
        <translation>Play</translation>
    </message>
    <message id="ID_HeadsetPage_PlayAgain">
        <source></source>
        <translation>Replay</translation>
    </message>
    <message id="ID_HeadsetPage_Playing">
        <source></source>
        <translation>Playing</translation>
    </message>
    <message id="ID_HeadsetPage_PleaseSelectTheAnswer">
        <source></source>
        <translation>Which sound do you hear?</translation>
    </message>
    <message id="ID_HeadsetPage_Saxophone">
        <source></source>
        <translation>Saxophone</translation>
    </message>
    <message id="ID_HeadsetPage_Seagull">
        <source></source>
        <translation>Seagull</translation>
    </message>
    <message id="ID_HeadsetPage_Shutter">
        <source></source>
        <translation>Shutter</translation>
    </message>
    <message id="ID_HeadsetPage_Speaker">
        <source></source>
        <translation>Speaker:</translation>
    </message>
    <message id="ID_HeadsetPage_Thunder">
        <source></source>
        <translation>Thunder</translation>
    </message>
    <message id="ID_HeadsetPage_Tip">
        <source></source>
        <translation>Press the play button, listen, and choose the sound that you hear.</translation>
    </message>
    <message id="ID_HeadsetPage_Typing">
        <source></source>
        <translation>Typing</translation>
    </message>
    <message id="ID_HeadsetPage_choseNo">
        <source></source>
        <translation>You can't hear the sound</translation>
    </message>
    <message id="ID_HeadsetPage_play">
        <source></source>
        <translation>Play</translation>
    </message>
    <message id="ID_HeadsetPage_sound0">
        <source></source>
        <translation>Sound 1</translation>
    </message>
    <message id="ID_HeadsetPage_sound1">
        <source></source>
        <translation>Sound 2</translation>
    </message>
    <message id="ID_HeadsetPage_sound2">
        <source></source>
        <translation>Sound 3</translation>
    </message>
    <message id="ID_HeadsetPage_sound3">
        <source></source>
        <translation>Sound 4</translation>
    </message>
    <message id="ID_Host_Changes">
        <source></source>
        <translation>Changes</translation>
    </message>
    <message id="ID_Host_Changes_None">
        <source></source>
        <translation>Nothing has changed since then.</translation>
    </message>
    <message id="ID_Host_Check_Loop">
        <source></source>
        <translation>Acoustic loop</translation>
    </message>
    <message id="ID_Host_Config_BadLine">
        <source></source>
        <translation>%1: every line must be KEY=VALUE, such as server=HOST, or a comment after a semicolon; correct it there</translation>
    </message>
    <message id="ID_Host_Config_BadValue">
        <source></source>
        <translation>%1: %2=%3: it takes %4; correct it there</translation>
    </message>
    <message id="ID_Host_Config_BadVariable">
        <source></source>
        <translation>%1=%2: it takes %3</translation>
    </message>
    <message id="ID_Host_Config_UnknownKey">
        <source></source>
        <translation>%1: unknown key %2; the keys are server, report-url and report-token-file</translation>
    </message>
    <message id="ID_Host_Config_Unreadable">
        <source></source>
        <translation>%1: it can't be read as a configuration file; put a text file with lines such as server=HOST there, or remove it</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerLost">
        <source></source>
        <translation>The camera service is not running</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerSilent">
        <source></source>
        <translation>The camera service does not answer</translation>
    </message>
    <message id="ID_Host_Devices_Cameras">
        <source></source>
        <translation>Cameras</translation>
    </message>
    <message id="ID_Host_Devices_Microphones">
        <source></source>
        <translation>Microphones</translation>
    </message>
    <message id="ID_Host_Devices_None">
        <source></source>
        <translation>none found</translation>
    </message>
    <message id="ID_Host_Devices_NotBuilt">
        <source></source>
        <translation>this program was built without the real devices (ENVCHECK_DEVICES): use --platform scripted</translation>
    </message>
    <message id="ID_Host_Devices_Speakers">
        <source></source>
        <translation>Speakers</translation>
    </message>
    <message id="ID_Host_Display_Gone">
        <source></source>
        <translation>the display has gone, so the check has ended: the X server or the Wayland compositor was closed; start the check again</translation>
    </message>
    <message id="ID_Host_Display_None">
        <source></source>
        <translation>there is no display to open the check on: start it from a desktop session, or with xvfb-run</translation>
    </message>
    <message id="ID_Host_Display_NotOpened">
        <source></source>
        <translation>the display %1 can't be opened: start the check from a desktop session, or with xvfb-run</translation>
    </message>
    <message id="ID_Host_Exit_AllPassed">
        <source></source>
        <translation>every check passed</translation>
    </message>
    <message id="ID_Host_Exit_BadInput">
        <source></source>
        <translation>a named file can't be used</translation>
    </message>
    <message id="ID_Host_Exit_CannotWrite">
        <source></source>
        <translation>a file or folder can't be written</translation>
    </message>
    <message id="ID_Host_Exit_LeftEarly">
        <source></source>
        <translation>the user left early</translation>
    </message>
    <message id="ID_Host_Exit_PutOut">
        <source></source>
        <translation>the session was ended by the classroom</translation>
    </message>
    <message id="ID_Host_Exit_SomeFailed">
        <source></source>
        <translation>a check failed</translation>
    </message>
    <message id="ID_Host_Exit_TourProblems">
        <source></source>
        <translation>the tour found a fault</translation>
    </message>
    <message id="ID_Host_Exit_Unavailable">
        <source></source>
        <translation>a display, port or server is missing</translation>
    </message>
    <message id="ID_Host_Exit_WrongUsage">
        <source></source>
        <translation>wrong usage: the message names the option</translation>
    </message>
    <message id="ID_Host_Figure_Answered">
        <source></source>
        <translation>Probes answered</translation>
    </message>
    <message id="ID_Host_Figure_Bandwidth">
        <source></source>
        <translation>Highest frequency heard</translation>
    </message>
    <message id="ID_Host_Figure_Black">
        <source></source>
        <translation>Black pictures</translation>
    </message>
    <message id="ID_Host_Figure_Brightness">
        <source></source>
        <translation>Brightness</translation>
    </message>
    <message id="ID_Host_Figure_Clipped">
        <source></source>
        <translation>Clipped sound</translation>
    </message>
    <message id="ID_Host_Figure_DefaultAfter">
        <source></source>
        <translation>Default device after</translation>
    </message>
    <message id="ID_Host_Figure_DefaultBefore">
        <source></source>
        <translation>Default device before</translation>
    </message>
    <message id="ID_Host_Figure_Delay">
        <source></source>
        <translation>Round trip (median)</translation>
    </message>
    <message id="ID_Host_Figure_Delay5">
        <source></source>
        <translation>Round trip (5th percentile)</translation>
    </message>
    <message id="ID_Host_Figure_Delay95">
        <source></source>
        <translation>Round trip (95th percentile)</translation>
    </message>
    <message id="ID_Host_Figure_FirstPicture">
        <source></source>
        <translation>Time to the first picture</translation>
    </message>
    <message id="ID_Host_Figure_Frozen">
        <source></source>
        <translation>Frozen pictures</translation>
    </message>
    <message id="ID_Host_Figure_Height">
        <source></source>
        <translation>Picture height</translation>
    </message>
    <message id="ID_Host_Figure_HumFrequency">
        <source></source>
        <translation>Mains hum frequency</translation>
    </message>
    <message id="ID_Host_Figure_HumShare">
        <source></source>
        <translation>Mains hum in the noise</translation>
    </message>
    <message id="ID_Host_Figure_Jitter">
        <source></source>
        <translation>Jitter</translation>
    </message>
    <message id="ID_Host_Figure_Level">
        <source></source>
        <translation>Level</translation>
    </message>
    <message id="ID_Host_Figure_LoopDelay">
        <source></source>
        <translation>Delay from speaker to microphone</translation>
    </message>
    <message id="ID_Host_Figure_LoopLevel">
        <source></source>
        <translation>Level at the microphone</translation>
    </message>
    <message id="ID_Host_Figure_Loss">
        <source></source>
        <translation>Packet loss</translation>
    </message>
    <message id="ID_Host_Figure_Modes">
        <source></source>
        <translation>Camera modes</translation>
    </message>
    <message id="ID_Host_Figure_MovedByUser">
        <source></source>
        <translation>Volume moved by the user</translation>
    </message>
    <message id="ID_Host_Figure_MutedAfter">
        <source></source>
        <translation>Muted afterwards</translation>
    </message>
    <message id="ID_Host_Figure_MutedBefore">
        <source></source>
        <translation>Muted before</translation>
    </message>
    <message id="ID_Host_Figure_NoiseFloor">
        <source></source>
        <translation>Noise floor</translation>
    </message>
    <message id="ID_Host_Figure_OneWayDelay">
        <source></source>
        <translation>One-way delay (half the round trip)</translation>
    </message>
    <message id="ID_Host_Figure_Peak">
        <source></source>
        <translation>Loudest sound</translation>
    </message>
    <message id="ID_Host_Figure_Pictures">
        <source></source>
        <translation>Pictures</translation>
    </message>
    <message id="ID_Host_Figure_Program">
        <source></source>
        <translation>Used by</translation>
    </message>
    <message id="ID_Host_Figure_Rate">
        <source></source>
        <translation>Picture rate</translation>
    </message>
    <message id="ID_Host_Figure_Seconds">
        <source></source>
        <translation>Time measured</translation>
    </message>
    <message id="ID_Host_Figure_Sent">
        <source></source>
        <translation>Probes sent</translation>
    </message>
    <message id="ID_Host_Figure_SoundHeard">
        <source></source>
        <translation>Sound heard</translation>
    </message>
    <message id="ID_Host_Figure_SoundPlayed">
        <source></source>
        <translation>Sound played</translation>
    </message>
    <message id="ID_Host_Figure_VolumeAfter">
        <source></source>
        <translation>Volume afterwards</translation>
    </message>
    <message id="ID_Host_Figure_VolumeBefore">
        <source></source>
        <translation>Volume before</translation>
    </message>
    <message id="ID_Host_Figure_Width">
        <source></source>
        <translation>Picture width</translation>
    </message>
    <message id="ID_Host_File_IsFolder">
        <source></source>
        <translation>it is a folder; name a file in it</translation>
    </message>
    <message id="ID_Host_File_NameOther">
        <source></source>
        <translation>%1; name another file</translation>
    </message>
    <message id="ID_Host_File_NoFolder">
        <source></source>
        <translation>there is no folder %1; make it, or name another file</translation>
    </message>
    <message id="ID_Host_File_NoObject">
        <source></source>
        <translation>the document is not an object</translation>
    </message>
    <message id="ID_Host_File_NoReport">
        <source></source>
        <translation>%1 is not a report in JSON (%2); name one that the check has written</translation>
    </message>
    <message id="ID_Host_File_NoRight">
        <source></source>
        <translation>you are not allowed to write there; name another file</translation>
    </message>
    <message id="ID_Host_File_NotOrdinary">
        <source></source>
        <translation>it is not an ordinary file; name another one</translation>
    </message>
    <message id="ID_Host_File_NotRead">
        <source></source>
        <translation>%1 can't be read: %2; name a report that the check has written</translation>
    </message>
    <message id="ID_Host_File_NotWritten">
        <source></source>
        <translation>%1 can't be written: %2</translation>
    </message>
    <message id="ID_Host_File_TooLarge">
        <source></source>
        <translation>it is too large</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodPicture">
        <source></source>
        <translation>Answered no, but moving pictures came.</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodSound">
        <source></source>
        <translation>Answered no, but the microphone heard sound.</translation>
    </message>
    <message id="ID_Host_Flag_NoToRightSound">
        <source></source>
        <translation>Answered no, but picked the right sound.</translation>
    </message>
    <message id="ID_Host_Flag_YesToBlackPicture">
        <source></source>
        <translation>Answered yes to a black picture.</translation>
    </message>
    <message id="ID_Host_Flag_YesToFrozenPicture">
        <source></source>
        <translation>Answered yes to a frozen picture.</translation>
    </message>
    <message id="ID_Host_Flag_YesToMutedSpeaker">
        <source></source>
        <translation>Answered yes with the speaker muted.</translation>
    </message>
    <message id="ID_Host_Flag_YesToSilence">
        <source></source>
        <translation>Answered yes, but the microphone heard nothing.</translation>
    </message>
    <message id="ID_Host_Flag_YesToWrongSound">
        <source></source>
        <translation>Answered yes, but did not pick the right sound.</translation>
    </message>
    <message id="ID_Host_Flag_YesWithoutPictures">
        <source></source>
        <translation>Answered yes, but no pictures came.</translation>
    </message>
    <message id="ID_Host_Grade">
        <source></source>
        <translation>Network quality</translation>
    </message>
    <message id="ID_Host_Grade_Fair">
        <source></source>
        <translation>fair</translation>
    </message>
    <message id="ID_Host_Grade_FairUpTo">
        <source></source>
        <translation>fair up to %1</translation>
    </message>
    <message id="ID_Host_Grade_Good">
        <source></source>
        <translation>good</translation>
    </message>
    <message id="ID_Host_Grade_GoodUpTo">
        <source></source>
        <translation>good up to %1</translation>
    </message>
    <message id="ID_Host_Grade_Poor">
        <source></source>
        <translation>poor</translation>
    </message>
    <message id="ID_Host_Help_Arguments">
        <source></source>
        <translation>Arguments:</translation>
    </message>
    <message id="ID_Host_Help_Check">
        <source></source>
        <translation>Checks the network, the camera, the speaker and the microphone before an online class.</translation>
    </message>
    <message id="ID_Host_Help_Commands">
        <source></source>
        <translation>Commands:</translation>
    </message>
    <message id="ID_Host_Help_Devices">
        <source></source>
        <translation>Lists the cameras, microphones and speakers with their states. Exit code 0: the lists are complete, also if nothing was found; 69: the camera or sound service is not running or does not answer.</translation>
    </message>
    <message id="ID_Host_Help_ExitCodes">
        <source></source>
        <translation>Exit codes:</translation>
    </message>
    <message id="ID_Host_Help_File">
        <source></source>
        <translation>A report that the check has written; - is standard input. Without it: the report of the last run.</translation>
    </message>
    <message id="ID_Host_Help_History">
        <source></source>
        <translation>Lists the earlier runs with their outcomes and reports.</translation>
    </message>
    <message id="ID_Host_Help_Network">
        <source></source>
        <translation>Measures delay and loss and prints the figures as they come.</translation>
    </message>
    <message id="ID_Host_Help_NoCommand">
        <source></source>
        <translation>Without a command the check opens. Each command has its own help (--help).</translation>
    </message>
    <message id="ID_Host_Help_Options">
        <source></source>
        <translation>Options:</translation>
    </message>
    <message id="ID_Host_Help_Report">
        <source></source>
        <translation>Shows reports of earlier runs as text, HTML or JSON, or several as one table.</translation>
    </message>
    <message id="ID_Host_Help_Serve">
        <source></source>
        <translation>Answers measurements from other machines, as a small STUN server, until it is stopped.</translation>
    </message>
    <message id="ID_Host_Help_Usage">
        <source></source>
        <translation>Usage: %1</translation>
    </message>
    <message id="ID_Host_Help_UsageOptions">
        <source></source>
        <translation>[options]</translation>
    </message>
    <message id="ID_Host_History_NoReport">
        <source></source>
        <translation>there is no report of an earlier run; run the check, or name the FILE of a report</translation>
    </message>
    <message id="ID_Host_History_None">
        <source></source>
        <translation>There are no earlier runs.</translation>
    </message>
    <message id="ID_Host_Language_Unknown">
        <source></source>
        <translation>--language %1: there are no texts in this language; name one of %2</translation>
    </message>
    <message id="ID_Host_LastGoodRun">
        <source></source>
        <translation>Last good run</translation>
    </message>
    <message id="ID_Host_LastGoodRun_None">
        <source></source>
        <translation>There is no earlier run in which everything passed.</translation>
    </message>
    <message id="ID_Host_MeasuringFailed">
        <source></source>
        <translation>measuring failed: %1</translation>
    </message>
    <message id="ID_Host_Network_Ends">
        <source></source>
        <translation>server %1, this machine %2</translation>
    </message>
    <message id="ID_Host_Network_Figures">
        <source></source>
        <translation>delay %1 ms, jitter %2 ms, loss %3 %, sent %4, answered %5: %6</translation>
    </message>
    <message id="ID_Host_Network_NameServer">
        <source></source>
        <translation>not measured: no server; name one with --server, with %1, or in %2</translation>
    </message>
    <message id="ID_Host_Network_NoAnswer">
        <source></source>
        <translation>no answer, loss %1 %, sent %2, answered %3</translation>
    </message>
    <message id="ID_Host_Network_NoRoute">
        <source></source>
        <translation>no way to the server, loss %1 %, sent %2, answered %3</translation>
    </message>
    <message id="ID_Host_Network_NoSuchServer">
        <source></source>
        <translation>no such server, loss %1 %, sent %2, answered %3</translation>
    </message>
    <message id="ID_Host_Network_Refused">
        <source></source>
        <translation>the server refuses, loss %1 %, sent %2, answered %3</translation>
    </message>
    <message id="ID_Host_No">
        <source></source>
        <translation>No</translation>
    </message>
    <message id="ID_Host_NoAnswer">
        <source></source>
        <translation>No answer</translation>
    </message>
    <message id="ID_Host_NotMeasured">
        <source></source>
        <translation>not measured: %1</translation>
    </message>
    <message id="ID_Host_Option_Account">
        <source></source>
        <translation>Account to show; the system's user by default.</translation>
    </message>
    <message id="ID_Host_Option_Cdn">
        <source></source>
        <translation>CDN to show.</translation>
    </message>
    <message id="ID_Host_Option_Count">
        <source></source>
        <translation>End after N figures; without it the command runs until it is stopped.</translation>
    </message>
    <message id="ID_Host_Option_Diagnose">
        <source></source>
        <translation>Measure as --unattended does, and pack report, devices, versions and the log into FILE.zip for those who look for the cause. Without --redact, names and addresses are left out.</translation>
    </message>
    <message id="ID_Host_Option_FilesFrom">
        <source></source>
        <translation>Also take the names of reports from FILE, one on each line; - is standard input.</translation>
    </message>
    <message id="ID_Host_Option_Format">
        <source></source>
        <translation>text (the default), html or json; for many reports room (a table), map (a page with a tile for each), csv or jsonl.</translation>
    </message>
    <message id="ID_Host_Option_Help">
        <source></source>
        <translation>Show this help.</translation>
    </message>
    <message id="ID_Host_Option_Json">
        <source></source>
        <translation>Print JSON instead of a table.</translation>
    </message>
    <message id="ID_Host_Option_Language">
        <source></source>
        <translation>Language of the texts, such as en or zh_CN; the system's by default.</translation>
    </message>
    <message id="ID_Host_Option_Loop">
        <source></source>
        <translation>With --unattended: also play a quiet rising tone on the chosen speaker for a second, and listen for it with the chosen microphone. It makes noise.</translation>
    </message>
    <message id="ID_Host_Option_Nickname">
        <source></source>
        <translation>Nickname to show; the system's user by default.</translation>
    </message>
    <message id="ID_Host_Option_Platform">
        <source></source>
        <translation>Devices to check: devices (of this machine, the default) or scripted.</translation>
    </message>
    <message id="ID_Host_Option_Port">
        <source></source>
        <translation>UDP port to answer on; 3478 by default, 0 takes a free one.</translation>
    </message>
    <message id="ID_Host_Option_Quiet">
        <source></source>
        <translation>Open no window with the outcome after a check that failed.</translation>
    </message>
    <message id="ID_Host_Option_Redact">
        <source></source>
        <translation>What to leave out: none (the default), personal (no addresses, names and accounts) or hash (short codes in their place).</translation>
    </message>
    <message id="ID_Host_Option_Report">
        <source></source>
        <translation>Write the report to FILE instead of the default place; the ending of its name (.json, .html or .txt) sets the format, and - is standard output, as JSON.</translation>
    </message>
    <message id="ID_Host_Option_ReportTokenFile">
        <source></source>
        <translation>The file with the token that the report server asks for. Only you, or a group, may read it.</translation>
    </message>
    <message id="ID_Host_Option_ReportUrl">
        <source></source>
        <translation>The address to post the report and its codes to. Without --redact, names and addresses are left out of it.</translation>
    </message>
    <message id="ID_Host_Option_Results">
        <source></source>
        <translation>Also write the results alone to FILE, as JSON, after each change; - is standard output, at the end.</translation>
    </message>
    <message id="ID_Host_Option_Scenario">
        <source></source>
        <translation>What the scripted devices do: a file, or the name of a bundled scenario such as all-well. Implies --platform scripted.</translation>
    </message>
    <message id="ID_Host_Option_Server">
        <source></source>
        <translation>STUN server to measure delay and loss with, also as stun:HOST:PORT. Without a port the DNS records of the domain (_stun._udp) are asked, otherwise the port is 3478. ENVCHECK_SERVER or a configuration file can name it, too. Without a server the network is not measured: this machine answers itself.</translation>
    </message>
    <message id="ID_Host_Option_Tour">
        <source></source>
        <translation>Go through every step automatically and save a picture of each in FOLDER.</translation>
    </message>
    <message id="ID_Host_Option_Unattended">
        <source></source>
        <translation>Measure without a window and without a person; --json FILE (- for standard output) writes the report. Exit codes: 0 works, 1 needs fixing, 69 a service or server is missing.</translation>
    </message>
    <message id="ID_Host_Option_Verbose">
        <source></source>
        <translation>Also write the log to the terminal.</translation>
    </message>
    <message id="ID_Host_Option_Version">
        <source></source>
        <translation>Show the version.</translation>
    </message>
    <message id="ID_Host_Outcome_BrokenOff">
        <source></source>
        <translation>Unattended: ended before everything was measured</translation>
    </message>
    <message id="ID_Host_Outcome_Failed">
        <source></source>
        <translation>Finished with problems</translation>
    </message>
    <message id="ID_Host_Outcome_Faulty">
        <source></source>
        <translation>Unattended: something needs fixing</translation>
    </message>
    <message id="ID_Host_Outcome_LeftEarly">
        <source></source>
        <translation>Left before the end</translation>
    </message>
    <message id="ID_Host_Outcome_Passed">
        <source></source>
        <translation>Everything passed</translation>
    </message>
    <message id="ID_Host_Outcome_PutOut">
        <source></source>
        <translation>The session was ended by the classroom</translation>
    </message>
    <message id="ID_Host_Outcome_Unavailable">
        <source></source>
        <translation>Unattended: a service is missing, so not everything could be measured</translation>
    </message>
    <message id="ID_Host_Outcome_Works">
        <source></source>
        <translation>Unattended: everything that was measured works</translation>
    </message>
    <message id="ID_Host_OutputNotWritten">
        <source></source>
        <translation>the output can't be written; check whether the disk is full</translation>
    </message>
    <message id="ID_Host_Reason_Absent">
        <source></source>
        <translation>there is no device</translation>
    </message>
    <message id="ID_Host_Reason_Busy">
        <source></source>
        <translation>another program holds the device</translation>
    </message>
    <message id="ID_Host_Reason_Denied">
        <source></source>
        <translation>the system refuses access</translation>
    </message>
    <message id="ID_Host_Reason_Failed">
        <source></source>
        <translation>the device broke down</translation>
    </message>
    <message id="ID_Host_Reason_Hung">
        <source></source>
        <translation>the device did not answer</translation>
    </message>
    <message id="ID_Host_Reason_Muted">
        <source></source>
        <translation>the device is muted</translation>
    </message>
    <message id="ID_Host_Reason_NoAnswer">
        <source></source>
        <translation>the server did not answer</translation>
    </message>
    <message id="ID_Host_Reason_NoRoute">
        <source></source>
        <translation>there is no way to the server</translation>
    </message>
    <message id="ID_Host_Reason_NotBuilt">
        <source></source>
        <translation>not supported on this system</translation>
    </message>
    <message id="ID_Host_Reason_NotOffered">
        <source></source>
        <translation>this engine can't do it</translation>
    </message>
    <message id="ID_Host_Reason_NotRecorded">
        <source></source>
        <translation>the engine does not record it</translation>
    </message>
    <message id="ID_Host_Reason_Off">
        <source></source>
        <translation>the device is turned off</translation>
    </message>
    <message id="ID_Host_Reason_Refused">
        <source></source>
        <translation>the server refused</translation>
    </message>
    <message id="ID_Host_Reason_Scripted">
        <source></source>
        <translation>a scripted device has no such figure</translation>
    </message>
    <message id="ID_Host_Reason_ServerLost">
        <source></source>
        <translation>the sound service was not running</translation>
    </message>
    <message id="ID_Host_Reason_ServerSilent">
        <source></source>
        <translation>the sound service did not answer</translation>
    </message>
    <message id="ID_Host_Reason_Silent">
        <source></source>
        <translation>nothing came from the device</translation>
    </message>
    <message id="ID_Host_Reason_StepNotOpened">
        <source></source>
        <translation>this step was not opened</translation>
    </message>
    <message id="ID_Host_Reason_Unreadable">
        <source></source>
        <translation>the camera sends no format that can be shown</translation>
    </message>
    <message id="ID_Host_Reason_VolumeZero">
        <source></source>
        <translation>the volume is at 0</translation>
    </message>
    <message id="ID_Host_Redacted_Hash">
        <source></source>
        <translation>Addresses, names and accounts are replaced by short codes.</translation>
    </message>
    <message id="ID_Host_Redacted_Personal">
        <source></source>
        <translation>Addresses, names and accounts are left out.</translation>
    </message>
    <message id="ID_Host_Remedy_Clipping">
        <source></source>
        <translation>The microphone is too loud and distorts, so lower its volume.</translation>
    </message>
    <message id="ID_Host_Remedy_Hum">
        <source></source>
        <translation>The microphone hums, so try another socket or cable, and keep it away from power supplies.</translation>
    </message>
    <message id="ID_Host_Remedy_LoopNotHeard">
        <source></source>
        <translation>The microphone didn't hear the speaker, so turn up both, and check that both belong to the same headset or stand in the same room.</translation>
    </message>
    <message id="ID_Host_Remedy_ServerSilent">
        <source></source>
        <translation>The system's service for pictures and sound did not answer, so sign out and in again, or restart the computer.</translation>
    </message>
    <message id="ID_Host_ReportIsIn">
        <source></source>
        <translation>The report is in %1</translation>
    </message>
    <message id="ID_Host_Report_Answer">
        <source></source>
        <translation>Answer</translation>
    </message>
    <message id="ID_Host_Report_BadTime">
        <source></source>
        <translation>must be a time such as 2026-03-01T08:30:00Z</translation>
    </message>
    <message id="ID_Host_Report_Causes">
        <source></source>
        <translation>Causes</translation>
    </message>
    <message id="ID_Host_Report_Computer">
        <source></source>
        <translation>Computer</translation>
    </message>
    <message id="ID_Host_Report_Contradiction">
        <source></source>
        <translation>Contradiction</translation>
    </message>
    <message id="ID_Host_Report_Count">
        <source></source>
        <translation>Reports</translation>
    </message>
    <message id="ID_Host_Report_Device">
        <source></source>
        <translation>Device</translation>
    </message>
    <message id="ID_Host_Report_Id">
        <source></source>
        <translation>Report number</translation>
    </message>
    <message id="ID_Host_Report_Later">
        <source></source>
        <translation>Measured later</translation>
    </message>
    <message id="ID_Host_Report_Measurements">
        <source></source>
        <translation>Measurements</translation>
    </message>
    <message id="ID_Host_Report_Notice">
        <source></source>
        <translation>Note</translation>
    </message>
    <message id="ID_Host_Report_OtherFormat">
        <source></source>
        <translation>this is not a report of the check</translation>
    </message>
    <message id="ID_Host_Report_OtherVersion">
        <source></source>
        <translation>it is %1, and this program reads version %2</translation>
    </message>
    <message id="ID_Host_Report_Outcome">
        <source></source>
        <translation>Outcome</translation>
    </message>
    <message id="ID_Host_Report_Program">
        <source></source>
        <translation>Program</translation>
    </message>
    <message id="ID_Host_Report_Result">
        <source></source>
        <translation>Result</translation>
    </message>
    <message id="ID_Host_Report_RightSound">
        <source></source>
        <translation>Right sound picked</translation>
    </message>
    <message id="ID_Host_Report_Scripted">
        <source></source>
        <translation>The devices were scripted ones, not this machine's.</translation>
    </message>
    <message id="ID_Host_Report_Summary">
        <source></source>
        <translation>Summary</translation>
    </message>
    <message id="ID_Host_Report_System">
        <source></source>
        <translation>Machine and account</translation>
    </message>
    <message id="ID_Host_Report_Time">
        <source></source>
        <translation>Time</translation>
    </message>
    <message id="ID_Host_Report_Title">
        <source></source>
        <translation>System check report</translation>
    </message>
    <message id="ID_Host_Serve_Answering">
        <source></source>
        <translation>Answering on UDP port %1. Other machines measure the way here with --server stun:HOST:%1</translation>
    </message>
    <message id="ID_Host_Serve_NoPort">
        <source></source>
        <translation>UDP port %1 can't be used: %2. Choose another with --port</translation>
    </message>
    <message id="ID_Host_Serve_NotBuilt">
        <source></source>
        <translation>serve needs a program that was built with the real devices (ENVCHECK_DEVICES)</translation>
    </message>
    <message id="ID_Host_State_Absent">
        <source></source>
        <translation>not connected</translation>
    </message>
    <message id="ID_Host_State_Busy">
        <source></source>
        <translation>in use</translation>
    </message>
    <message id="ID_Host_State_Denied">
        <source></source>
        <translation>access denied</translation>
    </message>
    <message id="ID_Host_State_Failed">
        <source></source>
        <translation>failed</translation>
    </message>
    <message id="ID_Host_State_Hung">
        <source></source>
        <translation>does not answer</translation>
    </message>
    <message id="ID_Host_State_Off">
        <source></source>
        <translation>off</translation>
    </message>
    <message id="ID_Host_State_Ready">
        <source></source>
        <translation>ready</translation>
    </message>
    <message id="ID_Host_State_Silent">
        <source></source>
        <translation>silent</translation>
    </message>
    <message id="ID_Host_State_Working">
        <source></source>
        <translation>works</translation>
    </message>
    <message id="ID_Host_Takes_Ending">
        <source></source>
        <translation>a name that ends in %1, or - for standard output</translation>
    </message>
    <message id="ID_Host_Takes_FileEnding">
        <source></source>
        <translation>a file name that ends in %1</translation>
    </message>
    <message id="ID_Host_Takes_Number">
        <source></source>
        <translation>a number from %1 to %2</translation>
    </message>
    <message id="ID_Host_Takes_OneOf">
        <source></source>
        <translation>one of these: %1</translation>
    </message>
    <message id="ID_Host_Takes_Server">
        <source></source>
        <translation>HOST or HOST:PORT, with or without stun: before it, such as stun:stun.example.org:3478</translation>
    </message>
    <message id="ID_Host_Takes_WebAddress">
        <source></source>
        <translation>an http or https address</translation>
    </message>
    <message id="ID_Host_Token_NoToken">
        <source></source>
        <translation>%1: this is no token; it takes one line of letters, digits and - . _ ~ + /, with = at its end</translation>
    </message>
    <message id="ID_Host_Token_NotEncrypted">
        <source></source>
        <translation>%1: a token is sent over https only; take an https address, or no token</translation>
    </message>
    <message id="ID_Host_Token_NotRead">
        <source></source>
        <translation>%1 can't be read: %2; name a file with the token of the report server</translation>
    </message>
    <message id="ID_Host_Token_Open">
        <source></source>
        <translation>%1 has a token, and every user may read or write it; change that with: chmod o= %1</translation>
    </message>
    <message id="ID_Host_Tour_Done">
        <source></source>
        <translation>%1 pictures are in %2; index.html shows them all.</translation>
    </message>
    <message id="ID_Host_Tour_NoFolder">
        <source></source>
        <translation>--tour %1: this folder can't be made; name another one</translation>
    </message>
    <message id="ID_Host_Tour_NotWritten">
        <source></source>
        <translation>%1: %2; name another folder</translation>
    </message>
    <message id="ID_Host_Upload_Kept">
        <source></source>
        <translation>The report has not arrived at %1: %2. It is kept, and the next run sends it again.</translation>
    </message>
    <message id="ID_Host_Upload_NoAnswer">
        <source></source>
        <translation>no answer in time</translation>
    </message>
    <message id="ID_Host_Upload_Refused">
        <source></source>
        <translation>%1 does not take the report: %2. It is not sent again.</translation>
    </message>
    <message id="ID_Host_Upload_Sending">
        <source></source>
        <translation>Sending the report to %1 …</translation>
    </message>
    <message id="ID_Host_Upload_WrongToken">
        <source></source>
        <translation>the token is missing or wrong (HTTP %1)</translation>
    </message>
    <message id="ID_Host_Usage_EmptyName">
        <source></source>
        <translation>--%1 needs a name that is not empty</translation>
    </message>
    <message id="ID_Host_Usage_ExtraArgument">
        <source></source>
        <translation>'%1' is one argument too many: leave it out, or see --help</translation>
    </message>
    <message id="ID_Host_Usage_LeaveOneOut">
        <source></source>
        <translation>%1 can't be used with %2: leave one out</translation>
    </message>
    <message id="ID_Host_Usage_Needs">
        <source></source>
        <translation>--%1 needs --%2: add it, or leave --%1 out</translation>
    </message>
    <message id="ID_Host_Usage_OtherCommand">
        <source></source>
        <translation>--%1 can't be used with %2: see --help</translation>
    </message>
    <message id="ID_Host_Usage_SamePlace">
        <source></source>
        <translation>--%1 and --%2 would write to the same place (%3): name two different ones</translation>
    </message>
    <message id="ID_Host_Usage_SeeHelp">
        <source></source>
        <translation>%1 See --help.</translation>
    </message>
    <message id="ID_Host_Usage_Takes">
        <source></source>
        <translation>--%1 %2: it must be %3</translation>
    </message>
    <message id="ID_Host_Usage_TheCheck">
        <source></source>
        <translation>the check</translation>
    </message>
    <message id="ID_Host_Usage_UnknownCommand">
        <source></source>
        <translation>unknown command '%1': see --help</translation>
    </message>
    <message id="ID_Host_Verdict_Faulty">
        <source></source>
        <translation>Needs fixing</translation>
    </message>
    <message id="ID_Host_Verdict_Heard">
        <source></source>
        <translation>Heard</translation>
    </message>
    <message id="ID_Host_Verdict_NotHeard">
        <source></source>
        <translation>Not heard</translation>
    </message>
    <message id="ID_Host_Verdict_NotTried">
        <source></source>
        <translation>Not tried</translation>
    </message>
    <message id="ID_Host_Verdict_Unmeasured">
        <source></source>
        <translation>Not measured</translation>
    </message>
    <message id="ID_Host_Verdict_Works">
        <source></source>
        <translation>Works</translation>
    </message>
    <message id="ID_Host_Yes">
        <source></source>
        <translation>Yes</translation>
    </message>
    <message id="ID_Kestrel_SystemTesting">
        <source></source>
        <translation>System check</translation>
    </message>
    <message id="ID_MessageBox_Critical">
        <source></source>
        <translation>Error</translation>
    </message>
    <message id="ID_MessageBox_Information">
        <source></source>
        <translation>Information</translation>
    </message>
    <message id="ID_MessageBox_Question">
        <source></source>
        <translation>Question</translation>
    </message>
    <message id="ID_MessageBox_Warning">
        <source></source>
        <translation>Warning</translation>
    </message>
    <message id="ID_Microphone">
        <source></source>
        <translation>Mic:</translation>
    </message>
    <message id="ID_MicrophonePage_2">
        <source></source>
        <translation>2. Unmute the microphone: look for a switch or a mute key.</translation>
    </message>
    <message id="ID_MicrophonePage_3">
        <source></source>
        <translation>3. Turn the volume up, and speak close to the microphone.</translation>
    </message>
    <message id="ID_MicrophonePage_4">
        <source></source>
        <translation>4. Allow microphone access in the system's privacy settings.</translation>
    </message>
    <message id="ID_MicrophonePage_Again">
        <source></source>
        <translation>Again</translation>
    </message>
    <message id="ID_MicrophonePage_CanHearOrSee">
        <source></source>
        <translation>Yes, I hear and see it</translation>
    </message>
    <message id="ID_MicrophonePage_CanNotHearOrSee">
        <source></source>
        <translation>No, I can't hear or see</translation>
    </message>
    <message id="ID_MicrophonePage_ChoseNo">
        <source></source>
        <translation>Voice not heard, or bar not moving</translation>
    </message>
    <message id="ID_MicrophonePage_ClickHere">
        <source></source>
        <translation>Can't hear yourself or see the bar? Click here</translation>
    </message>
    <message id="ID_MicrophonePage_DisabledWillMakeMicrophoneUnusable">
        <source></source>
        <translation>The microphone is off. Choose one here, or enable it.</translation>
    </message>
    <message id="ID_MicrophonePage_MayNoisy">
        <source></source>
        <translation>Above 100 your voice may become noisy.</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneDisabled">
        <source></source>
        <translation>The microphone is off or disabled</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneTest">
        <source></source>
        <translation>Press "Record" and count aloud from 1 to 10. Listen to your voice, and watch whether the green bar moves.</translation>
    </message>
    <message id="ID_MicrophonePage_NoMicrophoneWasDetected">
        <source></source>
        <translation>No microphone was found</translation>
    </message>
    <message id="ID_MicrophonePage_NoVoiceWasRecorded">
        <source></source>
        <translation>The microphone picks up no sound</translation>
    </message>
    <message id="ID_MicrophonePage_OfS">
        <source></source>
        <translation>%1 s</translation>
    </message>
    <message id="ID_MicrophonePage_Recording">
        <source></source>
        <translation>Speak…</translation>
    </message>
    <message id="ID_Microphone_Check">
        <source></source>
        <translation>Mic</translation>
    </message>
    <message id="ID_NetworkPage_1">
        <source></source>
        <translation>1. Move closer to the Wi-Fi router, or use a network cable.</translation>
    </message>
    <message id="ID_NetworkPage_2">
        <source></source>
        <translation>2. Stop downloads and videos, on other devices as well.</translation>
    </message>
    <message id="ID_NetworkPage_3">
        <source></source>
        <translation>3. Turn off VPN and proxy, or restart the router.</translation>
    </message>
    <message id="ID_NetworkPage_Account">
        <source></source>
        <translation>Account:</translation>
    </message>
    <message id="ID_NetworkPage_AvailableCacheSpace">
        <source></source>
        <translation>Free cache:</translation>
    </message>
    <message id="ID_NetworkPage_CPU">
        <source></source>
        <translation>CPU:</translation>
    </message>
    <message id="ID_NetworkPage_ClickHere">
        <source></source>
        <translation>Network slow or unstable? Click here</translation>
    </message>
    <message id="ID_NetworkPage_Client">
        <source></source>
        <translation>Client:</translation>
    </message>
    <message id="ID_NetworkPage_LostRate">
        <source></source>
        <translation>Packet loss:</translation>
    </message>
    <message id="ID_NetworkPage_NetworkDelay">
        <source></source>
        <translation>Network delay:</translation>
    </message>
    <message id="ID_NetworkPage_NetworkSlowOrUnstable">
        <source></source>
        <translation>The network is slow or unstable</translation>
    </message>
    <message id="ID_NetworkPage_OS">
        <source></source>
        <translation>OS:</translation>
    </message>
    <message id="ID_NewLogin_Server">
        <source></source>
        <translation>Server:</translation>
    </message>
    <message id="ID_Next">
        <source></source>
        <translation>Next</translation>
    </message>
    <message id="ID_Nickname_NetworkPage">
        <source></source>
        <translation>Nickname:</translation>
    </message>
    <message id="ID_OK">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="ID_Record">
        <source></source>
        <translation>Record</translation>
    </message>
    <message id="ID_Skip">
        <source></source>
        <translation>Skip</translation>
    </message>
    <message id="ID_Volume">
        <source></source>
        <translation>Volume:</translation>
    </message>
    <message id="ID_WelcomePage_StartTest">
        <source></source>
        <translation>Start the check</translation>
    </message>
    <message id="ID_WelcomePage_Welcome">
        <source></source>
        <translation>Welcome to the online classroom</translation>
    </message>
    <message id="ID_hardwaremgrinterface_NoSpeakerFound">
        <source></source>
        <translation>No speaker was found</translation>
    </message>
    <message id="ID_lumcamera_NoWebcamFound">
        <source></source>
        <translation>No camera was found</translation>
    </message>
    <message id="ID_Host_Reason_NoServer">
        <source></source>
        <translation>no server</translation>
    </message>
    <message id="ID_Host_Reason_NoSuchHost">
        <source></source>
        <translation>the server's name is unknown</translation>
    </message>
    <message id="ID_Host_Remedy">
        <source></source>
        <translation>What to do</translation>
    </message>
    <message id="ID_Host_Remedy_NoServer">
        <source></source>
        <translation>Only this computer was measured, because no server is set, so ask your school for its server and set it with --server or in the configuration file.</translation>
    </message>
    <message id="ID_Host_Remedy_NoAnswer">
        <source></source>
        <translation>The server did not answer, so check that you are online and that no firewall blocks UDP.</translation>
    </message>
    <message id="ID_Host_Remedy_NoSuchHost">
        <source></source>
        <translation>The server's name is unknown, so check how it is written and that you are online.</translation>
    </message>
    <message id="ID_Host_Remedy_Slow">
        <source></source>
        <translation>The connection is slow, so use a cable or move closer to the Wi-Fi router, and stop downloads and other calls.</translation>
    </message>
    <message id="ID_Host_Remedy_Lossy">
        <source></source>
        <translation>Too much data is lost on the way, so use a cable or move closer to the Wi-Fi router.</translation>
    </message>
    <message id="ID_Host_Remedy_LeftTooSoon">
        <source></source>
        <translation>The step was left before anything was measured, so wait there until the figures appear.</translation>
    </message>
    <message id="ID_Host_Remedy_Absent">
        <source></source>
        <translation>No device was found, so plug one in or switch it on, then check again.</translation>
    </message>
    <message id="ID_Host_Remedy_Off">
        <source></source>
        <translation>The device is turned off in the list, so choose one there.</translation>
    </message>
    <message id="ID_Host_Remedy_Starting">
        <source></source>
        <translation>The device was still starting, so wait a little longer before you answer.</translation>
    </message>
    <message id="ID_Host_Remedy_Busy">
        <source></source>
        <translation>Another program is using the device, so close that program and check again.</translation>
    </message>
    <message id="ID_Host_Remedy_Denied">
        <source></source>
        <translation>The system refuses access to the device, so allow it in the privacy settings.</translation>
    </message>
    <message id="ID_Host_Remedy_Hung">
        <source></source>
        <translation>The device did not answer, so unplug it and plug it in again, or restart the computer.</translation>
    </message>
    <message id="ID_Host_Remedy_Stalled">
        <source></source>
        <translation>The camera sent no picture, so unplug it and plug it in again, or choose another one.</translation>
    </message>
    <message id="ID_Host_Remedy_Black">
        <source></source>
        <translation>The picture was black, so open the lens cover and switch on the light.</translation>
    </message>
    <message id="ID_Host_Remedy_Frozen">
        <source></source>
        <translation>The picture did not move, so unplug the camera and plug it in again.</translation>
    </message>
    <message id="ID_Host_Remedy_Unplugged">
        <source></source>
        <translation>The device was unplugged during the check, so plug it in again and check its cable.</translation>
    </message>
    <message id="ID_Host_Remedy_NotBuilt">
        <source></source>
        <translation>This program can't use such devices on this system, so try yours in another program.</translation>
    </message>
    <message id="ID_Host_Remedy_ServerLost">
        <source></source>
        <translation>The system's service for pictures and sound stopped, so sign out and in again, or restart the computer.</translation>
    </message>
    <message id="ID_Host_Remedy_Failed">
        <source></source>
        <translation>The device broke down, so plug it in again or try another one.</translation>
    </message>
    <message id="ID_Host_Remedy_Unreadable">
        <source></source>
        <translation>The camera sends no format that can be shown here, so choose another camera, or another format in its settings.</translation>
    </message>
    <message id="ID_Host_Remedy_Silent">
        <source></source>
        <translation>The microphone recorded nothing, so speak closer to it, check its own switch, or choose another one in the list.</translation>
    </message>
    <message id="ID_Host_Remedy_Muted">
        <source></source>
        <translation>The device is muted, so unmute it.</translation>
    </message>
    <message id="ID_Host_Remedy_VolumeZero">
        <source></source>
        <translation>The volume is 0, so turn it up.</translation>
    </message>
    <message id="ID_Host_Remedy_WrongSound">
        <source></source>
        <translation>You chose another sound than the one that was played, so turn up the volume and listen again.</translation>
    </message>
    <message id="ID_Host_Remedy_NotSeen">
        <source></source>
        <translation>You did not see yourself although the camera sent pictures, so check which camera is chosen.</translation>
    </message>
    <message id="ID_Host_Remedy_NotHeard">
        <source></source>
        <translation>You heard nothing although a sound was played, so turn up the volume and check which speaker is chosen.</translation>
    </message>
    <message id="ID_Host_Remedy_SelfNotHeard">
        <source></source>
        <translation>You did not hear yourself although the microphone recorded sound, so turn up the volume and check which speaker is chosen.</translation>
    </message>
    <message id="ID_Host_Window_Title">
        <source></source>
        <translation>Result of the check</translation>
    </message>
    <message id="ID_Host_Window_Copy">
        <source></source>
        <translation>Copy</translation>
    </message>
    <message id="ID_Host_Window_Save">
        <source></source>
        <translation>Save…</translation>
    </message>
    <message id="ID_Host_Window_Open">
        <source></source>
        <translation>Open report</translation>
    </message>
    <message id="ID_Host_Window_Close">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="ID_Host_Window_Copied">
        <source></source>
        <translation>The report is copied. Paste it before you close this window.</translation>
    </message>
    <message id="ID_Host_Window_Saved">
        <source></source>
        <translation>The report is saved in %1</translation>
    </message>
    <message id="ID_Host_Window_NotWritten">
        <source></source>
        <translation>The report can't be written to %1. Choose another place.</translation>
    </message>
    <message id="ID_Host_Window_NotOpened">
        <source></source>
        <translation>No program could open the report. It is in %1</translation>
    </message>
</context>
</TS>
