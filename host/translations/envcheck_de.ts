<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <message id="ID_CameraPage_1">
        <source></source>
        <translation>1. Prüfen Sie, ob das Gerät angeschlossen und ausgewählt ist.</translation>
    </message>
    <message id="ID_CameraPage_2">
        <source></source>
        <translation>2. Schließen Sie andere Programme, die die Kamera nutzen.</translation>
    </message>
    <message id="ID_CameraPage_3">
        <source></source>
        <translation>3. Öffnen Sie die Blende oder schalten Sie die Kamera ein.</translation>
    </message>
    <message id="ID_CameraPage_4">
        <source></source>
        <translation>4. Erlauben Sie die Kamera in den Datenschutzeinstellungen.</translation>
    </message>
    <message id="ID_CameraPage_5">
        <source></source>
        <translation>5. Starten Sie den Computer neu oder nehmen Sie ein anderes Gerät.</translation>
    </message>
    <message id="ID_CameraPage_Camera">
        <source></source>
        <translation>Kamera:</translation>
    </message>
    <message id="ID_CameraPage_CameraDisabled">
        <source></source>
        <translation>Die Kamera ist ausgeschaltet</translation>
    </message>
    <message id="ID_CameraPage_CannotSee">
        <source></source>
        <translation>Ich sehe nichts</translation>
    </message>
    <message id="ID_CameraPage_ClickHere">
        <source></source>
        <translation>Sie sehen sich nicht? Hier klicken</translation>
    </message>
    <message id="ID_CameraPage_DisabledWillMakeCameraUnusable">
        <source></source>
        <translation>Die Kamera ist aus. Wählen Sie eine oder aktivieren Sie sie.</translation>
    </message>
    <message id="ID_CameraPage_No">
        <source></source>
        <translation>Ich sehe nichts</translation>
    </message>
    <message id="ID_CameraPage_NoCameraImageWasDetected">
        <source></source>
        <translation>Die Kamera liefert kein Bild</translation>
    </message>
    <message id="ID_CameraPage_NotDetected">
        <source></source>
        <translation>Noch nicht beantwortet</translation>
    </message>
    <message id="ID_CameraPage_Yes">
        <source></source>
        <translation>Ich sehe mich</translation>
    </message>
    <message id="ID_CameraPage_choseNo">
        <source></source>
        <translation>Sie sehen sich nicht</translation>
    </message>
    <message id="ID_Camera_Check">
        <source></source>
        <translation>Kamera</translation>
    </message>
    <message id="ID_CheckResultPage_Abnormal">
        <source></source>
        <translation>Fehler</translation>
    </message>
    <message id="ID_CheckResultPage_CheckEquipmentAndRetest">
        <source></source>
        <translation>Beheben und erneut prüfen.</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentAbnormal">
        <source></source>
        <translation>Es gibt Probleme</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentNormal">
        <source></source>
        <translation>Alles funktioniert</translation>
    </message>
    <message id="ID_CheckResultPage_Headphone">
        <source></source>
        <translation>Ton</translation>
    </message>
    <message id="ID_CheckResultPage_Normal">
        <source></source>
        <translation>Bestanden</translation>
    </message>
    <message id="ID_CheckResultPage_OK">
        <source></source>
        <translation>Der Unterricht kann beginnen.</translation>
    </message>
    <message id="ID_CheckResultPage_Redetect">
        <source></source>
        <translation>Neu prüfen</translation>
    </message>
    <message id="ID_CheckResultPage_System">
        <source></source>
        <translation>System</translation>
    </message>
    <message id="ID_ContentPage_NotFinishedIfLeave">
        <source></source>
        <translation>Die Systemprüfung ist nicht abgeschlossen. Trotzdem beenden?</translation>
    </message>
    <message id="ID_Engine_BuiltInResponder">
        <source></source>
        <translation>Dieser Computer (Testserver)</translation>
    </message>
    <message id="ID_Engine_NoCamera">
        <source></source>
        <translation>Keine Kamera</translation>
    </message>
    <message id="ID_Engine_NoMicrophone">
        <source></source>
        <translation>Kein Mikrofon</translation>
    </message>
    <message id="ID_Engine_NoSpeaker">
        <source></source>
        <translation>Kein Lautsprecher gefunden</translation>
    </message>
    <message id="ID_Engine_NoSpeakerSelected">
        <source></source>
        <translation>Kein Lautsprecher gewählt</translation>
    </message>
    <message id="ID_HeadsetPage_2">
        <source></source>
        <translation>2. Erhöhen Sie die Lautstärke und schalten Sie den Ton ein.</translation>
    </message>
    <message id="ID_HeadsetPage_3">
        <source></source>
        <translation>3. Stecken Sie den Stecker ganz ein oder verbinden Sie Bluetooth neu.</translation>
    </message>
    <message id="ID_HeadsetPage_4">
        <source></source>
        <translation>4. Wählen Sie dieselbe Ausgabe in den Toneinstellungen.</translation>
    </message>
    <message id="ID_HeadsetPage_Bubble">
        <source></source>
        <translation>Blubbern</translation>
    </message>
    <message id="ID_HeadsetPage_CanHear">
        <source></source>
        <translation>Ich höre es</translation>
    </message>
    <message id="ID_HeadsetPage_CanNotHear">
        <source></source>
        <translation>Ich höre nichts</translation>
    </message>
    <message id="ID_HeadsetPage_ChoseWrong">
        <source></source>
        <translation>Falsches Geräusch gewählt</translation>
    </message>
    <message id="ID_HeadsetPage_ClickHere">
        <source></source>
        <translation>Sie hören nichts? Hier klicken</translation>
    </message>
    <message id="ID_HeadsetPage_Doorbell">
        <source></source>
        <translation>Türklingel</translation>
    </message>
    <message id="ID_HeadsetPage_Piano">
        <source></source>
        <translation>Klavier</translation>
    </message>
    <message id="ID_HeadsetPage_Play">
        <source></source>
        <translation>Hören</translation>
    </message>
    <message id="ID_HeadsetPage_PlayAgain">
        <source></source>
        <translation>Erneut</translation>
    </message>
    <message id="ID_HeadsetPage_Playing">
        <source></source>
        <translation>Läuft …</translation>
    </message>
    <message id="ID_HeadsetPage_PleaseSelectTheAnswer">
        <source></source>
        <translation>Welches Geräusch hören Sie?</translation>
    </message>
    <message id="ID_HeadsetPage_Saxophone">
        <source></source>
        <translation>Saxofon</translation>
    </message>
    <message id="ID_HeadsetPage_Seagull">
        <source></source>
        <translation>Möwe</translation>
    </message>
    <message id="ID_HeadsetPage_Shutter">
        <source></source>
        <translation>Auslöser</translation>
    </message>
    <message id="ID_HeadsetPage_Speaker">
        <source></source>
        <translation>Ausgabe:</translation>
    </message>
    <message id="ID_HeadsetPage_Thunder">
        <source></source>
        <translation>Donner</translation>
    </message>
    <message id="ID_HeadsetPage_Tip">
        <source></source>
        <translation>Drücken Sie auf Wiedergabe, hören Sie zu und wählen Sie das Geräusch, das Sie hören.</translation>
    </message>
    <message id="ID_HeadsetPage_Typing">
        <source></source>
        <translation>Tippen</translation>
    </message>
    <message id="ID_HeadsetPage_choseNo">
        <source></source>
        <translation>Sie hören das Geräusch nicht</translation>
    </message>
    <message id="ID_HeadsetPage_play">
        <source></source>
        <translation>Hören</translation>
    </message>
    <message id="ID_HeadsetPage_sound0">
        <source></source>
        <translation>Ton 1</translation>
    </message>
    <message id="ID_HeadsetPage_sound1">
        <source></source>
        <translation>Ton 2</translation>
    </message>
    <message id="ID_HeadsetPage_sound2">
        <source></source>
        <translation>Ton 3</translation>
    </message>
    <message id="ID_HeadsetPage_sound3">
        <source></source>
        <translation>Ton 4</translation>
    </message>
    <message id="ID_Kestrel_SystemTesting">
        <source></source>
        <translation>Systemprüfung</translation>
    </message>
    <message id="ID_MessageBox_Critical">
        <source></source>
        <translation>Fehler</translation>
    </message>
    <message id="ID_MessageBox_Information">
        <source></source>
        <translation>Information</translation>
    </message>
    <message id="ID_MessageBox_Question">
        <source></source>
        <translation>Frage</translation>
    </message>
    <message id="ID_MessageBox_Warning">
        <source></source>
        <translation>Warnung</translation>
    </message>
    <message id="ID_Microphone">
        <source></source>
        <translation>Mikrofon:</translation>
    </message>
    <message id="ID_MicrophonePage_2">
        <source></source>
        <translation>2. Heben Sie die Stummschaltung auf: Schalter oder Taste.</translation>
    </message>
    <message id="ID_MicrophonePage_3">
        <source></source>
        <translation>3. Erhöhen Sie die Lautstärke und sprechen Sie nah am Mikrofon.</translation>
    </message>
    <message id="ID_MicrophonePage_4">
        <source></source>
        <translation>4. Erlauben Sie das Mikrofon in den Datenschutzeinstellungen.</translation>
    </message>
    <message id="ID_MicrophonePage_Again">
        <source></source>
        <translation>Erneut</translation>
    </message>
    <message id="ID_MicrophonePage_CanHearOrSee">
        <source></source>
        <translation>Ja, beides geht</translation>
    </message>
    <message id="ID_MicrophonePage_CanNotHearOrSee">
        <source></source>
        <translation>Nein, nicht beides</translation>
    </message>
    <message id="ID_MicrophonePage_ChoseNo">
        <source></source>
        <translation>Stimme oder Balken fehlt</translation>
    </message>
    <message id="ID_MicrophonePage_ClickHere">
        <source></source>
        <translation>Keine Stimme oder kein Balken? Hier klicken</translation>
    </message>
    <message id="ID_MicrophonePage_DisabledWillMakeMicrophoneUnusable">
        <source></source>
        <translation>Das Mikrofon ist aus. Wählen Sie eines oder aktivieren Sie es.</translation>
    </message>
    <message id="ID_MicrophonePage_MayNoisy">
        <source></source>
        <translation>Über 100 kann es rauschen.</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneDisabled">
        <source></source>
        <translation>Das Mikrofon ist ausgeschaltet</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneTest">
        <source></source>
        <translation>Drücken Sie „Start“ und zählen Sie laut von 1 bis 10. Hören Sie sich zu und achten Sie auf den grünen Balken.</translation>
    </message>
    <message id="ID_MicrophonePage_NoMicrophoneWasDetected">
        <source></source>
        <translation>Kein Mikrofon gefunden</translation>
    </message>
    <message id="ID_MicrophonePage_NoVoiceWasRecorded">
        <source></source>
        <translation>Das Mikrofon nimmt keinen Ton auf</translation>
    </message>
    <message id="ID_MicrophonePage_OfS">
        <source></source>
        <translation>%1 s</translation>
    </message>
    <message id="ID_MicrophonePage_Recording">
        <source></source>
        <translation>Läuft …</translation>
    </message>
    <message id="ID_Microphone_Check">
        <source></source>
        <translation>Mikro</translation>
    </message>
    <message id="ID_NetworkPage_1">
        <source></source>
        <translation>1. Gehen Sie näher an den WLAN-Router oder nutzen Sie ein Kabel.</translation>
    </message>
    <message id="ID_NetworkPage_2">
        <source></source>
        <translation>2. Beenden Sie Downloads und Videos, auch auf anderen Geräten.</translation>
    </message>
    <message id="ID_NetworkPage_3">
        <source></source>
        <translation>3. Schalten Sie VPN und Proxy aus oder starten Sie den Router neu.</translation>
    </message>
    <message id="ID_NetworkPage_Account">
        <source></source>
        <translation>Konto:</translation>
    </message>
    <message id="ID_NetworkPage_AvailableCacheSpace">
        <source></source>
        <translation>Freier Cache:</translation>
    </message>
    <message id="ID_NetworkPage_CPU">
        <source></source>
        <translation>Prozessor:</translation>
    </message>
    <message id="ID_NetworkPage_ClickHere">
        <source></source>
        <translation>Netzwerk langsam oder instabil? Hier klicken</translation>
    </message>
    <message id="ID_NetworkPage_Client">
        <source></source>
        <translation>Client:</translation>
    </message>
    <message id="ID_NetworkPage_LostRate">
        <source></source>
        <translation>Paketverlust:</translation>
    </message>
    <message id="ID_NetworkPage_NetworkDelay">
        <source></source>
        <translation>Verzögerung:</translation>
    </message>
    <message id="ID_NetworkPage_NetworkSlowOrUnstable">
        <source></source>
        <translation>Netzwerk langsam oder instabil</translation>
    </message>
    <message id="ID_NetworkPage_OS">
        <source></source>
        <translation>Betriebssystem:</translation>
    </message>
    <message id="ID_NewLogin_Server">
        <source></source>
        <translation>Server:</translation>
    </message>
    <message id="ID_Next">
        <source></source>
        <translation>Weiter</translation>
    </message>
    <message id="ID_Nickname_NetworkPage">
        <source></source>
        <translation>Anzeigename:</translation>
    </message>
    <message id="ID_OK">
        <source></source>
        <translation>Fertig</translation>
    </message>
    <message id="ID_Record">
        <source></source>
        <translation>Start</translation>
    </message>
    <message id="ID_Skip">
        <source></source>
        <translation>Überspringen</translation>
    </message>
    <message id="ID_Volume">
        <source></source>
        <translation>Pegel:</translation>
    </message>
    <message id="ID_WelcomePage_StartTest">
        <source></source>
        <translation>Prüfung starten</translation>
    </message>
    <message id="ID_WelcomePage_Welcome">
        <source></source>
        <translation>Willkommen im Online-Unterricht</translation>
    </message>
    <message id="ID_hardwaremgrinterface_NoSpeakerFound">
        <source></source>
        <translation>Kein Lautsprecher gefunden</translation>
    </message>
    <message id="ID_lumcamera_NoWebcamFound">
        <source></source>
        <translation>Keine Kamera gefunden</translation>
    </message>
</context>
</TS>
