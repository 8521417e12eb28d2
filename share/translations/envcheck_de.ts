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
        <translation>Nicht gemessen: kein Server</translation>
    </message>
    <message id="ID_Engine_Camera_Absent">
        <source></source>
        <translation>Keine Kamera gefunden.
Schließen Sie eine an diesen Computer an.</translation>
    </message>
    <message id="ID_Engine_Camera_Black">
        <source></source>
        <translation>Das Bild ist schwarz.
Öffnen Sie die Blende oder machen Sie Licht an.</translation>
    </message>
    <message id="ID_Engine_Camera_Busy">
        <source></source>
        <translation>Ein anderes Programm nutzt die Kamera.
Schließen Sie dieses Programm.</translation>
    </message>
    <message id="ID_Engine_Camera_BusyBy">
        <source></source>
        <translation>%1 nutzt die Kamera.
Schließen Sie dieses Programm.</translation>
    </message>
    <message id="ID_Engine_Camera_Denied">
        <source></source>
        <translation>Das System verweigert den Zugriff auf die Kamera.
Erlauben Sie ihn in den Datenschutzeinstellungen des Systems.</translation>
    </message>
    <message id="ID_Engine_Camera_Failed">
        <source></source>
        <translation>Die Kamera funktioniert nicht.
Stecken Sie sie neu ein oder wählen Sie eine andere.</translation>
    </message>
    <message id="ID_Engine_Camera_Hung">
        <source></source>
        <translation>Die Kamera antwortet nicht.
Stecken Sie sie neu ein oder starten Sie den Computer neu.</translation>
    </message>
    <message id="ID_Engine_Camera_NotBuilt">
        <source></source>
        <translation>Dieses Programm kann auf diesem System keine Kameras verwenden.
Probieren Sie Ihre in einem anderen Programm aus.</translation>
    </message>
    <message id="ID_Engine_Camera_ServerLost">
        <source></source>
        <translation>Der Kameradienst dieses Computers läuft nicht.
Warten Sie einen Moment oder starten Sie den Computer neu.</translation>
    </message>
    <message id="ID_Engine_Camera_Stalled">
        <source></source>
        <translation>Die Kamera liefert keine Bilder.
Stecken Sie sie neu ein oder wählen Sie eine andere.</translation>
    </message>
    <message id="ID_Engine_Camera_Starting">
        <source></source>
        <translation>Die Kamera startet…</translation>
    </message>
    <message id="ID_Engine_Camera_Unplugged">
        <source></source>
        <translation>Die Kamera wurde abgezogen.
Stecken Sie sie wieder ein oder wählen Sie eine andere.</translation>
    </message>
    <message id="ID_Engine_Camera_Unreadable">
        <source></source>
        <translation>Die Bilder der Kamera können hier nicht angezeigt werden.
Wählen Sie eine andere oder stellen Sie an ihr ein anderes Format ein.</translation>
    </message>
    <message id="ID_Engine_File_BadEnd">
        <source></source>
        <translation>unter Windows darf ein Name nicht mit Punkt oder Leerzeichen enden</translation>
    </message>
    <message id="ID_Engine_File_BadLetter">
        <source></source>
        <translation>unter Windows darf ein Name weder &lt; &gt; : " | ? * noch Steuerzeichen enthalten</translation>
    </message>
    <message id="ID_Engine_File_DeadLink">
        <source></source>
        <translation>es ist ein Verweis ins Leere</translation>
    </message>
    <message id="ID_Engine_File_DeviceName">
        <source></source>
        <translation>%1 ist unter Windows der Name eines Geräts</translation>
    </message>
    <message id="ID_Engine_File_DiskSilent">
        <source></source>
        <translation>der Datenträger antwortet nicht</translation>
    </message>
    <message id="ID_Engine_File_ForeignLink">
        <source></source>
        <translation>es ist ein Verweis, der einem anderen Benutzer gehört</translation>
    </message>
    <message id="ID_Engine_File_LockHeld">
        <source></source>
        <translation>ein anderes Programm hält die Sperrdatei %1</translation>
    </message>
    <message id="ID_Engine_File_LockNotMade">
        <source></source>
        <translation>die Sperrdatei kann nicht angelegt werden</translation>
    </message>
    <message id="ID_Engine_File_LockNotRegular">
        <source></source>
        <translation>die Sperrdatei %1 ist keine gewöhnliche Datei</translation>
    </message>
    <message id="ID_Engine_File_NoFolder">
        <source></source>
        <translation>der Ordner kann nicht angelegt werden</translation>
    </message>
    <message id="ID_Engine_File_NotMade">
        <source></source>
        <translation>der neue Inhalt kann nicht erzeugt werden; ist der Datenträger voll?</translation>
    </message>
    <message id="ID_Engine_File_NotRegular">
        <source></source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message id="ID_Engine_File_TooLarge">
        <source></source>
        <translation>sie ist größer als %1 MiB</translation>
    </message>
    <message id="ID_Engine_File_TooManyChanges">
        <source></source>
        <translation>zu viele Änderungen warten auf den Datenträger</translation>
    </message>
    <message id="ID_Engine_Json_Document">
        <source></source>
        <translation>das Dokument muss ein Objekt sein</translation>
    </message>
    <message id="ID_Engine_Json_Empty">
        <source></source>
        <translation>darf nicht leer sein</translation>
    </message>
    <message id="ID_Engine_Json_Flag">
        <source></source>
        <translation>muss true oder false sein</translation>
    </message>
    <message id="ID_Engine_Json_Invalid">
        <source></source>
        <translation>kein gültiges JSON: %1</translation>
    </message>
    <message id="ID_Engine_Json_List">
        <source></source>
        <translation>muss eine Liste sein</translation>
    </message>
    <message id="ID_Engine_Json_Missing">
        <source></source>
        <translation>fehlt</translation>
    </message>
    <message id="ID_Engine_Json_Number">
        <source></source>
        <translation>muss eine Zahl sein</translation>
    </message>
    <message id="ID_Engine_Json_Object">
        <source></source>
        <translation>muss ein Objekt sein</translation>
    </message>
    <message id="ID_Engine_Json_ShortList">
        <source></source>
        <translation>muss eine Liste mit höchstens %1 Elementen sein</translation>
    </message>
    <message id="ID_Engine_Json_ShortText">
        <source></source>
        <translation>muss ein Text mit höchstens %1 Zeichen sein</translation>
    </message>
    <message id="ID_Engine_Json_Text">
        <source></source>
        <translation>muss ein Text sein</translation>
    </message>
    <message id="ID_Engine_Json_Twice">
        <source></source>
        <translation>kommt zweimal vor</translation>
    </message>
    <message id="ID_Engine_Json_Unknown">
        <source></source>
        <translation>ist hier kein bekanntes Feld</translation>
    </message>
    <message id="ID_Engine_Json_WholeNumber">
        <source></source>
        <translation>muss eine ganze Zahl von %1 bis %2 sein</translation>
    </message>
    <message id="ID_Engine_Json_Word">
        <source></source>
        <translation>muss eines von diesen sein: %1</translation>
    </message>
    <message id="ID_Engine_Json_WordList">
        <source></source>
        <translation>muss eine Liste aus diesen Wörtern sein: %1</translation>
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
    <message id="ID_Engine_NotConnected">
        <source></source>
        <translation>Nicht angeschlossen</translation>
    </message>
    <message id="ID_Engine_Scenario_Base">
        <source></source>
        <translation>muss ein mitgeliefertes Szenario nennen</translation>
    </message>
    <message id="ID_Engine_Scenario_Levels">
        <source></source>
        <translation>muss [Millisekunden, Pegel] sein: von 0 an steigend, und ein Pegel von 0 bis 1</translation>
    </message>
    <message id="ID_Engine_Scenario_NoDevice">
        <source></source>
        <translation>nennt kein Gerät dieses Szenarios von der Art %1</translation>
    </message>
    <message id="ID_Engine_Scenario_NoVolume">
        <source></source>
        <translation>eine Kamera hat keine Lautstärke</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRead">
        <source></source>
        <translation>kann nicht gelesen werden: %1</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRegular">
        <source></source>
        <translation>keine gewöhnliche Datei; nennen Sie eine Szenariodatei</translation>
    </message>
    <message id="ID_Engine_Scenario_SameId">
        <source></source>
        <translation>muss in seiner Liste einmalig sein</translation>
    </message>
    <message id="ID_Engine_Scenario_TooLarge">
        <source></source>
        <translation>größer als 1 MiB; nennen Sie eine Szenariodatei</translation>
    </message>
    <message id="ID_Engine_Scenario_TooManyDevices">
        <source></source>
        <translation>mehr als %1 verschiedene Geräte dieser Art; stecken Sie eines ein, das schon da war</translation>
    </message>
    <message id="ID_Engine_Scenario_Unknown">
        <source></source>
        <translation>es gibt weder diese Datei noch ein mitgeliefertes Szenario dieses Namens (es gibt %1)</translation>
    </message>
    <message id="ID_Engine_SoundNotBuilt">
        <source></source>
        <translation>Kein Ton: System wird nicht unterstützt</translation>
    </message>
    <message id="ID_Engine_SoundServerLost">
        <source></source>
        <translation>Der Tondienst läuft nicht</translation>
    </message>
    <message id="ID_Engine_SoundServerSilent">
        <source></source>
        <translation>Der Tondienst antwortet nicht</translation>
    </message>
    <message id="ID_Engine_TelephoneQuality">
        <source></source>
        <translation>%1 (Telefonqualität)</translation>
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
        <translation>Drücken Sie auf „Hören“ und wählen Sie dann das Geräusch, das Sie hören.</translation>
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
        <translation>Geräusch 1</translation>
    </message>
    <message id="ID_HeadsetPage_sound1">
        <source></source>
        <translation>Geräusch 2</translation>
    </message>
    <message id="ID_HeadsetPage_sound2">
        <source></source>
        <translation>Geräusch 3</translation>
    </message>
    <message id="ID_HeadsetPage_sound3">
        <source></source>
        <translation>Geräusch 4</translation>
    </message>
    <message id="ID_Host_Changes">
        <source></source>
        <translation>Änderungen</translation>
    </message>
    <message id="ID_Host_Changes_None">
        <source></source>
        <translation>Seither hat sich nichts geändert.</translation>
    </message>
    <message id="ID_Host_Check_Loop">
        <source></source>
        <translation>Akustische Schleife</translation>
    </message>
    <message id="ID_Host_Config_BadLine">
        <source></source>
        <translation>%1: jede Zeile muss KEY=VALUE lauten, etwa server=HOST, oder ein Kommentar nach einem Semikolon sein; bitte dort berichtigen</translation>
    </message>
    <message id="ID_Host_Config_BadValue">
        <source></source>
        <translation>%1: %2=%3: möglich ist %4; bitte dort berichtigen</translation>
    </message>
    <message id="ID_Host_Config_BadVariable">
        <source></source>
        <translation>%1=%2: möglich ist %3</translation>
    </message>
    <message id="ID_Host_Config_UnknownKey">
        <source></source>
        <translation>%1: unbekannter Schlüssel %2; es gibt server, report-url und report-token-file</translation>
    </message>
    <message id="ID_Host_Config_Unreadable">
        <source></source>
        <translation>%1: als Konfigurationsdatei nicht lesbar; legen Sie dort eine Textdatei mit Zeilen wie server=HOST ab oder entfernen Sie sie</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerLost">
        <source></source>
        <translation>Der Kameradienst läuft nicht</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerSilent">
        <source></source>
        <translation>Der Kameradienst antwortet nicht</translation>
    </message>
    <message id="ID_Host_Devices_Cameras">
        <source></source>
        <translation>Kameras</translation>
    </message>
    <message id="ID_Host_Devices_Microphones">
        <source></source>
        <translation>Mikrofone</translation>
    </message>
    <message id="ID_Host_Devices_None">
        <source></source>
        <translation>keine gefunden</translation>
    </message>
    <message id="ID_Host_Devices_NotBuilt">
        <source></source>
        <translation>dieses Programm wurde ohne die echten Geräte gebaut (ENVCHECK_DEVICES): nehmen Sie --platform scripted</translation>
    </message>
    <message id="ID_Host_Devices_Speakers">
        <source></source>
        <translation>Lautsprecher</translation>
    </message>
    <message id="ID_Host_Display_Gone">
        <source></source>
        <translation>die Anzeige ist weg und damit die Prüfung: Der X-Server oder der Wayland-Compositor wurde beendet; starten Sie die Prüfung neu</translation>
    </message>
    <message id="ID_Host_Display_None">
        <source></source>
        <translation>es gibt keine Anzeige für die Prüfung: starten Sie sie in einer Desktop-Sitzung oder mit xvfb-run</translation>
    </message>
    <message id="ID_Host_Display_NotOpened">
        <source></source>
        <translation>die Anzeige %1 lässt sich nicht öffnen: starten Sie die Prüfung in einer Desktop-Sitzung oder mit xvfb-run</translation>
    </message>
    <message id="ID_Host_Exit_AllPassed">
        <source></source>
        <translation>alles bestanden</translation>
    </message>
    <message id="ID_Host_Exit_BadInput">
        <source></source>
        <translation>eine angegebene Datei ist unbrauchbar</translation>
    </message>
    <message id="ID_Host_Exit_CannotWrite">
        <source></source>
        <translation>eine Datei oder ein Ordner lässt sich nicht schreiben</translation>
    </message>
    <message id="ID_Host_Exit_LeftEarly">
        <source></source>
        <translation>vorzeitig verlassen</translation>
    </message>
    <message id="ID_Host_Exit_PutOut">
        <source></source>
        <translation>die Sitzung wurde vom Klassenzimmer beendet</translation>
    </message>
    <message id="ID_Host_Exit_SomeFailed">
        <source></source>
        <translation>eine Prüfung ist fehlgeschlagen</translation>
    </message>
    <message id="ID_Host_Exit_TourProblems">
        <source></source>
        <translation>der Rundgang hat einen Fehler gefunden</translation>
    </message>
    <message id="ID_Host_Exit_Unavailable">
        <source></source>
        <translation>eine Anzeige, ein Port oder ein Server fehlt</translation>
    </message>
    <message id="ID_Host_Exit_WrongUsage">
        <source></source>
        <translation>falscher Aufruf: die Meldung nennt die Option</translation>
    </message>
    <message id="ID_Host_Figure_Answered">
        <source></source>
        <translation>Beantwortete Messpakete</translation>
    </message>
    <message id="ID_Host_Figure_Bandwidth">
        <source></source>
        <translation>Höchste aufgenommene Frequenz</translation>
    </message>
    <message id="ID_Host_Figure_Black">
        <source></source>
        <translation>Schwarze Bilder</translation>
    </message>
    <message id="ID_Host_Figure_Brightness">
        <source></source>
        <translation>Helligkeit</translation>
    </message>
    <message id="ID_Host_Figure_Clipped">
        <source></source>
        <translation>Übersteuerter Ton</translation>
    </message>
    <message id="ID_Host_Figure_DefaultAfter">
        <source></source>
        <translation>Standardgerät nachher</translation>
    </message>
    <message id="ID_Host_Figure_DefaultBefore">
        <source></source>
        <translation>Standardgerät vorher</translation>
    </message>
    <message id="ID_Host_Figure_Delay">
        <source></source>
        <translation>Umlaufzeit (Median)</translation>
    </message>
    <message id="ID_Host_Figure_Delay5">
        <source></source>
        <translation>Umlaufzeit (5. Perzentil)</translation>
    </message>
    <message id="ID_Host_Figure_Delay95">
        <source></source>
        <translation>Umlaufzeit (95. Perzentil)</translation>
    </message>
    <message id="ID_Host_Figure_FirstPicture">
        <source></source>
        <translation>Zeit bis zum ersten Bild</translation>
    </message>
    <message id="ID_Host_Figure_Frozen">
        <source></source>
        <translation>Eingefrorene Bilder</translation>
    </message>
    <message id="ID_Host_Figure_Height">
        <source></source>
        <translation>Bildhöhe</translation>
    </message>
    <message id="ID_Host_Figure_HumFrequency">
        <source></source>
        <translation>Frequenz des Netzbrummens</translation>
    </message>
    <message id="ID_Host_Figure_HumShare">
        <source></source>
        <translation>Netzbrummen im Rauschen</translation>
    </message>
    <message id="ID_Host_Figure_Jitter">
        <source></source>
        <translation>Schwankung (Jitter)</translation>
    </message>
    <message id="ID_Host_Figure_Level">
        <source></source>
        <translation>Pegel</translation>
    </message>
    <message id="ID_Host_Figure_LoopDelay">
        <source></source>
        <translation>Verzögerung vom Lautsprecher zum Mikrofon</translation>
    </message>
    <message id="ID_Host_Figure_LoopLevel">
        <source></source>
        <translation>Pegel am Mikrofon</translation>
    </message>
    <message id="ID_Host_Figure_Loss">
        <source></source>
        <translation>Paketverlust</translation>
    </message>
    <message id="ID_Host_Figure_Modes">
        <source></source>
        <translation>Modi der Kamera</translation>
    </message>
    <message id="ID_Host_Figure_MovedByUser">
        <source></source>
        <translation>Lautstärke vom Benutzer geändert</translation>
    </message>
    <message id="ID_Host_Figure_MutedAfter">
        <source></source>
        <translation>Nachher stumm</translation>
    </message>
    <message id="ID_Host_Figure_MutedBefore">
        <source></source>
        <translation>Vorher stumm</translation>
    </message>
    <message id="ID_Host_Figure_NoiseFloor">
        <source></source>
        <translation>Grundrauschen</translation>
    </message>
    <message id="ID_Host_Figure_OneWayDelay">
        <source></source>
        <translation>Verzögerung in eine Richtung (halbe Umlaufzeit)</translation>
    </message>
    <message id="ID_Host_Figure_Peak">
        <source></source>
        <translation>Lautester Ton</translation>
    </message>
    <message id="ID_Host_Figure_Pictures">
        <source></source>
        <translation>Bilder</translation>
    </message>
    <message id="ID_Host_Figure_Program">
        <source></source>
        <translation>Benutzt von</translation>
    </message>
    <message id="ID_Host_Figure_Rate">
        <source></source>
        <translation>Bildrate</translation>
    </message>
    <message id="ID_Host_Figure_Seconds">
        <source></source>
        <translation>Gemessene Zeit</translation>
    </message>
    <message id="ID_Host_Figure_Sent">
        <source></source>
        <translation>Gesendete Messpakete</translation>
    </message>
    <message id="ID_Host_Figure_SoundHeard">
        <source></source>
        <translation>Ton aufgenommen</translation>
    </message>
    <message id="ID_Host_Figure_SoundPlayed">
        <source></source>
        <translation>Abgespieltes Geräusch</translation>
    </message>
    <message id="ID_Host_Figure_VolumeAfter">
        <source></source>
        <translation>Lautstärke nachher</translation>
    </message>
    <message id="ID_Host_Figure_VolumeBefore">
        <source></source>
        <translation>Lautstärke vorher</translation>
    </message>
    <message id="ID_Host_Figure_Width">
        <source></source>
        <translation>Bildbreite</translation>
    </message>
    <message id="ID_Host_File_IsFolder">
        <source></source>
        <translation>das ist ein Ordner; nennen Sie eine Datei darin</translation>
    </message>
    <message id="ID_Host_File_NameOther">
        <source></source>
        <translation>%1; nennen Sie eine andere Datei</translation>
    </message>
    <message id="ID_Host_File_NoFolder">
        <source></source>
        <translation>den Ordner %1 gibt es nicht; legen Sie ihn an oder nennen Sie eine andere Datei</translation>
    </message>
    <message id="ID_Host_File_NoObject">
        <source></source>
        <translation>das Dokument ist kein Objekt</translation>
    </message>
    <message id="ID_Host_File_NoReport">
        <source></source>
        <translation>%1 ist kein Bericht in JSON (%2); nennen Sie einen, den eine Prüfung geschrieben hat</translation>
    </message>
    <message id="ID_Host_File_NoRight">
        <source></source>
        <translation>Sie dürfen dort nicht schreiben; nennen Sie eine andere Datei</translation>
    </message>
    <message id="ID_Host_File_NotOrdinary">
        <source></source>
        <translation>das ist keine gewöhnliche Datei; nennen Sie eine andere</translation>
    </message>
    <message id="ID_Host_File_NotRead">
        <source></source>
        <translation>%1 lässt sich nicht lesen: %2; nennen Sie einen Bericht, den eine Prüfung geschrieben hat</translation>
    </message>
    <message id="ID_Host_File_NotWritten">
        <source></source>
        <translation>%1 lässt sich nicht schreiben: %2</translation>
    </message>
    <message id="ID_Host_File_TooLarge">
        <source></source>
        <translation>die Datei ist zu groß</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodPicture">
        <source></source>
        <translation>Mit Nein geantwortet, aber es kamen bewegte Bilder.</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodSound">
        <source></source>
        <translation>Mit Nein geantwortet, aber das Mikrofon nahm Ton auf.</translation>
    </message>
    <message id="ID_Host_Flag_NoToRightSound">
        <source></source>
        <translation>Mit Nein geantwortet, aber das richtige Geräusch gewählt.</translation>
    </message>
    <message id="ID_Host_Flag_YesToBlackPicture">
        <source></source>
        <translation>Mit Ja geantwortet, obwohl das Bild schwarz war.</translation>
    </message>
    <message id="ID_Host_Flag_YesToFrozenPicture">
        <source></source>
        <translation>Mit Ja geantwortet, obwohl das Bild eingefroren war.</translation>
    </message>
    <message id="ID_Host_Flag_YesToMutedSpeaker">
        <source></source>
        <translation>Mit Ja geantwortet, obwohl der Lautsprecher stumm war.</translation>
    </message>
    <message id="ID_Host_Flag_YesToSilence">
        <source></source>
        <translation>Mit Ja geantwortet, aber das Mikrofon nahm nichts auf.</translation>
    </message>
    <message id="ID_Host_Flag_YesToWrongSound">
        <source></source>
        <translation>Mit Ja geantwortet, aber nicht das richtige Geräusch gewählt.</translation>
    </message>
    <message id="ID_Host_Flag_YesWithoutPictures">
        <source></source>
        <translation>Mit Ja geantwortet, aber es kamen keine Bilder.</translation>
    </message>
    <message id="ID_Host_Grade">
        <source></source>
        <translation>Netzwerkqualität</translation>
    </message>
    <message id="ID_Host_Grade_Fair">
        <source></source>
        <translation>mittel</translation>
    </message>
    <message id="ID_Host_Grade_FairUpTo">
        <source></source>
        <translation>mittel bis %1</translation>
    </message>
    <message id="ID_Host_Grade_Good">
        <source></source>
        <translation>gut</translation>
    </message>
    <message id="ID_Host_Grade_GoodUpTo">
        <source></source>
        <translation>gut bis %1</translation>
    </message>
    <message id="ID_Host_Grade_Poor">
        <source></source>
        <translation>schlecht</translation>
    </message>
    <message id="ID_Host_Help_Arguments">
        <source></source>
        <translation>Argumente:</translation>
    </message>
    <message id="ID_Host_Help_Check">
        <source></source>
        <translation>Prüft vor dem Online-Unterricht Netzwerk, Kamera, Lautsprecher und Mikrofon.</translation>
    </message>
    <message id="ID_Host_Help_Commands">
        <source></source>
        <translation>Befehle:</translation>
    </message>
    <message id="ID_Host_Help_Devices">
        <source></source>
        <translation>Listet Kameras, Mikrofone und Lautsprecher mit ihrem Zustand auf. Exit-Code 0: Die Listen sind vollständig, auch wenn nichts gefunden wurde; 69: Der Kamera- oder Tondienst läuft nicht oder antwortet nicht.</translation>
    </message>
    <message id="ID_Host_Help_ExitCodes">
        <source></source>
        <translation>Rückgabewerte:</translation>
    </message>
    <message id="ID_Host_Help_File">
        <source></source>
        <translation>Ein Bericht, den eine Prüfung geschrieben hat; - ist die Standardeingabe. Ohne ihn: der Bericht der letzten Prüfung.</translation>
    </message>
    <message id="ID_Host_Help_History">
        <source></source>
        <translation>Listet die früheren Prüfungen mit Ergebnissen und Berichten auf.</translation>
    </message>
    <message id="ID_Host_Help_Network">
        <source></source>
        <translation>Misst Verzögerung und Paketverlust und gibt die Werte laufend aus.</translation>
    </message>
    <message id="ID_Host_Help_NoCommand">
        <source></source>
        <translation>Ohne Befehl öffnet sich die Prüfung. Jeder Befehl hat seine eigene Hilfe (--help).</translation>
    </message>
    <message id="ID_Host_Help_Options">
        <source></source>
        <translation>Optionen:</translation>
    </message>
    <message id="ID_Host_Help_Report">
        <source></source>
        <translation>Zeigt Berichte früherer Prüfungen als Text, HTML oder JSON, oder mehrere als eine Tabelle.</translation>
    </message>
    <message id="ID_Host_Help_Serve">
        <source></source>
        <translation>Beantwortet als kleiner STUN-Server die Messungen anderer Computer, bis er beendet wird.</translation>
    </message>
    <message id="ID_Host_Help_Usage">
        <source></source>
        <translation>Aufruf: %1</translation>
    </message>
    <message id="ID_Host_Help_UsageOptions">
        <source></source>
        <translation>[Optionen]</translation>
    </message>
    <message id="ID_Host_History_NoReport">
        <source></source>
        <translation>es ist noch kein Bericht einer Prüfung da; führen Sie die Prüfung aus oder nennen Sie die Datei eines Berichts</translation>
    </message>
    <message id="ID_Host_History_None">
        <source></source>
        <translation>Es gibt keine früheren Prüfungen.</translation>
    </message>
    <message id="ID_Host_Language_Unknown">
        <source></source>
        <translation>--language %1: in dieser Sprache gibt es keine Texte; nennen Sie eine von %2</translation>
    </message>
    <message id="ID_Host_LastGoodRun">
        <source></source>
        <translation>Letzte bestandene Prüfung</translation>
    </message>
    <message id="ID_Host_LastGoodRun_None">
        <source></source>
        <translation>Es gibt keine frühere Prüfung, in der alles bestanden wurde.</translation>
    </message>
    <message id="ID_Host_MeasuringFailed">
        <source></source>
        <translation>Messung gescheitert: %1</translation>
    </message>
    <message id="ID_Host_Network_Ends">
        <source></source>
        <translation>Server %1, dieser Computer %2</translation>
    </message>
    <message id="ID_Host_Network_Figures">
        <source></source>
        <translation>Verzögerung %1 ms, Schwankung %2 ms, Paketverlust %3 %, gesendet %4, beantwortet %5: %6</translation>
    </message>
    <message id="ID_Host_Network_NameServer">
        <source></source>
        <translation>nicht gemessen: kein Server; geben Sie einen mit --server, mit %1 oder in %2 an</translation>
    </message>
    <message id="ID_Host_Network_NoAnswer">
        <source></source>
        <translation>keine Antwort, Paketverlust %1 %, gesendet %2, beantwortet %3</translation>
    </message>
    <message id="ID_Host_Network_NoRoute">
        <source></source>
        <translation>kein Weg zum Server, Paketverlust %1 %, gesendet %2, beantwortet %3</translation>
    </message>
    <message id="ID_Host_Network_NoSuchServer">
        <source></source>
        <translation>Server nicht gefunden, Paketverlust %1 %, gesendet %2, beantwortet %3</translation>
    </message>
    <message id="ID_Host_Network_Refused">
        <source></source>
        <translation>Server lehnt ab, Paketverlust %1 %, gesendet %2, beantwortet %3</translation>
    </message>
    <message id="ID_Host_No">
        <source></source>
        <translation>Nein</translation>
    </message>
    <message id="ID_Host_NoAnswer">
        <source></source>
        <translation>Keine Antwort</translation>
    </message>
    <message id="ID_Host_NotMeasured">
        <source></source>
        <translation>nicht gemessen: %1</translation>
    </message>
    <message id="ID_Host_Option_Account">
        <source></source>
        <translation>Konto, das angezeigt wird; sonst der Benutzer des Systems.</translation>
    </message>
    <message id="ID_Host_Option_Cdn">
        <source></source>
        <translation>CDN, das angezeigt wird.</translation>
    </message>
    <message id="ID_Host_Option_Count">
        <source></source>
        <translation>Endet nach N Messwerten; sonst läuft der Befehl, bis er beendet wird.</translation>
    </message>
    <message id="ID_Host_Option_Diagnose">
        <source></source>
        <translation>Misst wie --unattended und packt Bericht, Geräte, Versionen und Protokoll in FILE.zip, für alle, die nach der Ursache suchen. Ohne --redact bleiben Namen und Adressen weg.</translation>
    </message>
    <message id="ID_Host_Option_FilesFrom">
        <source></source>
        <translation>Nimmt die Namen von Berichten auch aus FILE, einen je Zeile; - ist die Standardeingabe.</translation>
    </message>
    <message id="ID_Host_Option_Format">
        <source></source>
        <translation>text (Standard), html oder json; für viele Berichte room (Tabelle), map (Seite mit einer Kachel je Bericht), csv oder jsonl.</translation>
    </message>
    <message id="ID_Host_Option_Help">
        <source></source>
        <translation>Zeigt diese Hilfe.</translation>
    </message>
    <message id="ID_Host_Option_Json">
        <source></source>
        <translation>Gibt JSON statt einer Tabelle aus.</translation>
    </message>
    <message id="ID_Host_Option_Language">
        <source></source>
        <translation>Sprache der Texte, etwa en oder zh_CN; sonst die des Systems.</translation>
    </message>
    <message id="ID_Host_Option_Loop">
        <source></source>
        <translation>Mit --unattended: spielt zusätzlich eine Sekunde lang einen leisen, steigenden Ton auf dem gewählten Lautsprecher und sucht ihn im gewählten Mikrofon. Das ist zu hören.</translation>
    </message>
    <message id="ID_Host_Option_Nickname">
        <source></source>
        <translation>Anzeigename; sonst der Benutzer des Systems.</translation>
    </message>
    <message id="ID_Host_Option_Platform">
        <source></source>
        <translation>Geräte, die geprüft werden: devices (die dieses Computers, Standard) oder scripted (simulierte).</translation>
    </message>
    <message id="ID_Host_Option_Port">
        <source></source>
        <translation>UDP-Port, auf dem geantwortet wird; Standard ist 3478, 0 nimmt einen freien.</translation>
    </message>
    <message id="ID_Host_Option_Quiet">
        <source></source>
        <translation>Nach einer Prüfung mit Fehlern kein Fenster mit dem Ergebnis öffnen.</translation>
    </message>
    <message id="ID_Host_Option_Redact">
        <source></source>
        <translation>Was weggelassen wird: none (nichts, Standard), personal (Adressen, Namen und Konten) oder hash (kurze Codes an deren Stelle).</translation>
    </message>
    <message id="ID_Host_Option_Report">
        <source></source>
        <translation>Schreibt den Bericht in FILE statt an den üblichen Ort; die Endung (.json, .html oder .txt) bestimmt das Format, - ist die Standardausgabe, als JSON.</translation>
    </message>
    <message id="ID_Host_Option_ReportTokenFile">
        <source></source>
        <translation>Datei mit dem Token, das der Berichtsserver verlangt. Nur Sie oder eine Gruppe dürfen sie lesen.</translation>
    </message>
    <message id="ID_Host_Option_ReportUrl">
        <source></source>
        <translation>Adresse, an die der Bericht und seine Codes gesendet werden. Ohne --redact fehlen darin Namen und Adressen.</translation>
    </message>
    <message id="ID_Host_Option_Results">
        <source></source>
        <translation>Schreibt nach jeder Änderung auch die bloßen Ergebnisse als JSON in FILE; - ist die Standardausgabe, am Ende.</translation>
    </message>
    <message id="ID_Host_Option_Scenario">
        <source></source>
        <translation>Was die simulierten Geräte tun: eine Datei oder der Name eines mitgelieferten Szenarios wie all-well. Schließt --platform scripted ein.</translation>
    </message>
    <message id="ID_Host_Option_Server">
        <source></source>
        <translation>STUN-Server, zu dem Verzögerung und Paketverlust gemessen werden, auch als stun:HOST:PORT. Ohne Port werden die DNS-Einträge der Domain (_stun._udp) gefragt, sonst gilt Port 3478. Auch ENVCHECK_SERVER oder eine Konfigurationsdatei kann ihn nennen. Ohne Server wird das Netzwerk nicht gemessen: Dieser Computer antwortet selbst.</translation>
    </message>
    <message id="ID_Host_Option_Tour">
        <source></source>
        <translation>Geht automatisch durch alle Schritte und speichert von jedem ein Bild in FOLDER.</translation>
    </message>
    <message id="ID_Host_Option_Unattended">
        <source></source>
        <translation>Misst ohne Fenster und ohne Person; --json DATEI (- für die Standardausgabe) schreibt den Bericht. Exit-Codes: 0 funktioniert, 1 zu beheben, 69 ein Dienst oder Server fehlt.</translation>
    </message>
    <message id="ID_Host_Option_Verbose">
        <source></source>
        <translation>Schreibt auch das Protokoll ins Terminal.</translation>
    </message>
    <message id="ID_Host_Option_Version">
        <source></source>
        <translation>Zeigt die Version.</translation>
    </message>
    <message id="ID_Host_Outcome_BrokenOff">
        <source></source>
        <translation>Unbeaufsichtigt: beendet, bevor alles gemessen war</translation>
    </message>
    <message id="ID_Host_Outcome_Failed">
        <source></source>
        <translation>Mit Problemen beendet</translation>
    </message>
    <message id="ID_Host_Outcome_Faulty">
        <source></source>
        <translation>Unbeaufsichtigt: Etwas ist zu beheben</translation>
    </message>
    <message id="ID_Host_Outcome_LeftEarly">
        <source></source>
        <translation>Vorzeitig verlassen</translation>
    </message>
    <message id="ID_Host_Outcome_Passed">
        <source></source>
        <translation>Alles bestanden</translation>
    </message>
    <message id="ID_Host_Outcome_PutOut">
        <source></source>
        <translation>Die Sitzung wurde vom Klassenzimmer beendet</translation>
    </message>
    <message id="ID_Host_Outcome_Unavailable">
        <source></source>
        <translation>Unbeaufsichtigt: Ein Dienst fehlt, deshalb konnte nicht alles gemessen werden</translation>
    </message>
    <message id="ID_Host_Outcome_Works">
        <source></source>
        <translation>Unbeaufsichtigt: Alles Gemessene funktioniert</translation>
    </message>
    <message id="ID_Host_OutputNotWritten">
        <source></source>
        <translation>die Ausgabe lässt sich nicht schreiben; prüfen Sie, ob der Datenträger voll ist</translation>
    </message>
    <message id="ID_Host_Reason_Absent">
        <source></source>
        <translation>es ist kein Gerät da</translation>
    </message>
    <message id="ID_Host_Reason_Busy">
        <source></source>
        <translation>ein anderes Programm belegt das Gerät</translation>
    </message>
    <message id="ID_Host_Reason_Denied">
        <source></source>
        <translation>das System verweigert den Zugriff</translation>
    </message>
    <message id="ID_Host_Reason_Failed">
        <source></source>
        <translation>das Gerät ist ausgefallen</translation>
    </message>
    <message id="ID_Host_Reason_Hung">
        <source></source>
        <translation>das Gerät antwortet nicht</translation>
    </message>
    <message id="ID_Host_Reason_Muted">
        <source></source>
        <translation>das Gerät ist stummgeschaltet</translation>
    </message>
    <message id="ID_Host_Reason_NoAnswer">
        <source></source>
        <translation>der Server antwortet nicht</translation>
    </message>
    <message id="ID_Host_Reason_NoRoute">
        <source></source>
        <translation>es gibt keinen Weg zum Server</translation>
    </message>
    <message id="ID_Host_Reason_NotBuilt">
        <source></source>
        <translation>wird auf diesem System nicht unterstützt</translation>
    </message>
    <message id="ID_Host_Reason_NotOffered">
        <source></source>
        <translation>diese Engine kann es nicht</translation>
    </message>
    <message id="ID_Host_Reason_NotRecorded">
        <source></source>
        <translation>die Engine zeichnet diesen Wert nicht auf</translation>
    </message>
    <message id="ID_Host_Reason_Off">
        <source></source>
        <translation>das Gerät ist ausgeschaltet</translation>
    </message>
    <message id="ID_Host_Reason_Refused">
        <source></source>
        <translation>der Server lehnt ab</translation>
    </message>
    <message id="ID_Host_Reason_Scripted">
        <source></source>
        <translation>ein simuliertes Gerät hat diesen Wert nicht</translation>
    </message>
    <message id="ID_Host_Reason_ServerLost">
        <source></source>
        <translation>der Tondienst läuft nicht</translation>
    </message>
    <message id="ID_Host_Reason_ServerSilent">
        <source></source>
        <translation>der Tondienst antwortet nicht</translation>
    </message>
    <message id="ID_Host_Reason_Silent">
        <source></source>
        <translation>vom Gerät kam nichts</translation>
    </message>
    <message id="ID_Host_Reason_StepNotOpened">
        <source></source>
        <translation>dieser Schritt wurde nicht geöffnet</translation>
    </message>
    <message id="ID_Host_Reason_Unreadable">
        <source></source>
        <translation>die Kamera sendet kein Format, das angezeigt werden kann</translation>
    </message>
    <message id="ID_Host_Reason_VolumeZero">
        <source></source>
        <translation>die Lautstärke ist 0</translation>
    </message>
    <message id="ID_Host_Redacted_Hash">
        <source></source>
        <translation>Adressen, Namen und Konten sind durch kurze Codes ersetzt.</translation>
    </message>
    <message id="ID_Host_Redacted_Personal">
        <source></source>
        <translation>Adressen, Namen und Konten sind weggelassen.</translation>
    </message>
    <message id="ID_Host_Remedy_Clipping">
        <source></source>
        <translation>Das Mikrofon ist zu laut und verzerrt: Stellen Sie es leiser.</translation>
    </message>
    <message id="ID_Host_Remedy_Hum">
        <source></source>
        <translation>Das Mikrofon brummt: Versuchen Sie einen anderen Anschluss oder ein anderes Kabel, und halten Sie es von Netzteilen fern.</translation>
    </message>
    <message id="ID_Host_Remedy_LoopNotHeard">
        <source></source>
        <translation>Das Mikrofon hat den Lautsprecher nicht gehört: Stellen Sie beide lauter und prüfen Sie, ob beide zum selben Headset gehören oder im selben Raum stehen.</translation>
    </message>
    <message id="ID_Host_Remedy_ServerSilent">
        <source></source>
        <translation>Der Bild- und Tondienst des Systems hat nicht geantwortet: Melden Sie sich ab und wieder an, oder starten Sie den Computer neu.</translation>
    </message>
    <message id="ID_Host_ReportIsIn">
        <source></source>
        <translation>Der Bericht liegt in %1</translation>
    </message>
    <message id="ID_Host_Report_Answer">
        <source></source>
        <translation>Antwort</translation>
    </message>
    <message id="ID_Host_Report_BadTime">
        <source></source>
        <translation>muss eine Zeit wie 2026-03-01T08:30:00Z sein</translation>
    </message>
    <message id="ID_Host_Report_Causes">
        <source></source>
        <translation>Ursachen</translation>
    </message>
    <message id="ID_Host_Report_Computer">
        <source></source>
        <translation>Computer</translation>
    </message>
    <message id="ID_Host_Report_Contradiction">
        <source></source>
        <translation>Widerspruch</translation>
    </message>
    <message id="ID_Host_Report_Count">
        <source></source>
        <translation>Berichte</translation>
    </message>
    <message id="ID_Host_Report_Device">
        <source></source>
        <translation>Gerät</translation>
    </message>
    <message id="ID_Host_Report_Id">
        <source></source>
        <translation>Berichtsnummer</translation>
    </message>
    <message id="ID_Host_Report_Later">
        <source></source>
        <translation>Später gemessen</translation>
    </message>
    <message id="ID_Host_Report_Measurements">
        <source></source>
        <translation>Messwerte</translation>
    </message>
    <message id="ID_Host_Report_Notice">
        <source></source>
        <translation>Hinweis</translation>
    </message>
    <message id="ID_Host_Report_OtherFormat">
        <source></source>
        <translation>dies ist kein Bericht der Prüfung</translation>
    </message>
    <message id="ID_Host_Report_OtherVersion">
        <source></source>
        <translation>es ist %1, und dieses Programm liest Version %2</translation>
    </message>
    <message id="ID_Host_Report_Outcome">
        <source></source>
        <translation>Gesamtergebnis</translation>
    </message>
    <message id="ID_Host_Report_Program">
        <source></source>
        <translation>Programm</translation>
    </message>
    <message id="ID_Host_Report_Result">
        <source></source>
        <translation>Ergebnis</translation>
    </message>
    <message id="ID_Host_Report_RightSound">
        <source></source>
        <translation>Richtiges Geräusch gewählt</translation>
    </message>
    <message id="ID_Host_Report_Scripted">
        <source></source>
        <translation>Die Geräte waren simuliert, nicht die dieses Computers.</translation>
    </message>
    <message id="ID_Host_Report_Summary">
        <source></source>
        <translation>Übersicht</translation>
    </message>
    <message id="ID_Host_Report_System">
        <source></source>
        <translation>Computer und Konto</translation>
    </message>
    <message id="ID_Host_Report_Time">
        <source></source>
        <translation>Zeitpunkt</translation>
    </message>
    <message id="ID_Host_Report_Title">
        <source></source>
        <translation>Bericht der Systemprüfung</translation>
    </message>
    <message id="ID_Host_Serve_Answering">
        <source></source>
        <translation>Antwortet auf UDP-Port %1. Andere Computer messen den Weg hierher mit --server stun:HOST:%1</translation>
    </message>
    <message id="ID_Host_Serve_NoPort">
        <source></source>
        <translation>auf UDP-Port %1 kann nicht geantwortet werden: %2. Wählen Sie mit --port einen anderen</translation>
    </message>
    <message id="ID_Host_Serve_NotBuilt">
        <source></source>
        <translation>serve braucht ein Programm, das mit den echten Geräten gebaut wurde (ENVCHECK_DEVICES)</translation>
    </message>
    <message id="ID_Host_State_Absent">
        <source></source>
        <translation>nicht angeschlossen</translation>
    </message>
    <message id="ID_Host_State_Busy">
        <source></source>
        <translation>belegt</translation>
    </message>
    <message id="ID_Host_State_Denied">
        <source></source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message id="ID_Host_State_Failed">
        <source></source>
        <translation>ausgefallen</translation>
    </message>
    <message id="ID_Host_State_Hung">
        <source></source>
        <translation>antwortet nicht</translation>
    </message>
    <message id="ID_Host_State_Off">
        <source></source>
        <translation>ausgeschaltet</translation>
    </message>
    <message id="ID_Host_State_Ready">
        <source></source>
        <translation>bereit</translation>
    </message>
    <message id="ID_Host_State_Silent">
        <source></source>
        <translation>liefert nichts</translation>
    </message>
    <message id="ID_Host_State_Working">
        <source></source>
        <translation>funktioniert</translation>
    </message>
    <message id="ID_Host_Takes_Ending">
        <source></source>
        <translation>ein Name, der auf %1 endet, oder - für die Standardausgabe</translation>
    </message>
    <message id="ID_Host_Takes_FileEnding">
        <source></source>
        <translation>ein Dateiname, der auf %1 endet</translation>
    </message>
    <message id="ID_Host_Takes_Number">
        <source></source>
        <translation>eine Zahl von %1 bis %2</translation>
    </message>
    <message id="ID_Host_Takes_OneOf">
        <source></source>
        <translation>eines von: %1</translation>
    </message>
    <message id="ID_Host_Takes_Server">
        <source></source>
        <translation>HOST oder HOST:PORT, auch mit stun: davor, etwa stun:stun.example.org:3478</translation>
    </message>
    <message id="ID_Host_Takes_WebAddress">
        <source></source>
        <translation>eine Adresse mit http oder https</translation>
    </message>
    <message id="ID_Host_Token_NoToken">
        <source></source>
        <translation>%1: Das ist kein Token; erwartet wird eine Zeile aus Buchstaben, Ziffern und - . _ ~ + /, mit = am Ende</translation>
    </message>
    <message id="ID_Host_Token_NotEncrypted">
        <source></source>
        <translation>%1: Ein Token wird nur über https gesendet; nehmen Sie eine Adresse mit https oder kein Token</translation>
    </message>
    <message id="ID_Host_Token_NotRead">
        <source></source>
        <translation>%1 lässt sich nicht lesen: %2; nennen Sie eine Datei mit dem Token des Berichtsservers</translation>
    </message>
    <message id="ID_Host_Token_Open">
        <source></source>
        <translation>%1 enthält ein Token, und jeder Benutzer darf die Datei lesen oder schreiben; das ändert: chmod o= %1</translation>
    </message>
    <message id="ID_Host_Tour_Done">
        <source></source>
        <translation>%1 Bilder liegen in %2; index.html zeigt sie alle.</translation>
    </message>
    <message id="ID_Host_Tour_NoFolder">
        <source></source>
        <translation>--tour %1: dieser Ordner lässt sich nicht anlegen; nennen Sie einen anderen</translation>
    </message>
    <message id="ID_Host_Tour_NotWritten">
        <source></source>
        <translation>%1: %2; nennen Sie einen anderen Ordner</translation>
    </message>
    <message id="ID_Host_Upload_Kept">
        <source></source>
        <translation>Der Bericht ist bei %1 nicht angekommen: %2. Er bleibt aufbewahrt, und der nächste Lauf sendet ihn noch einmal.</translation>
    </message>
    <message id="ID_Host_Upload_NoAnswer">
        <source></source>
        <translation>keine Antwort in der Zeit</translation>
    </message>
    <message id="ID_Host_Upload_Refused">
        <source></source>
        <translation>%1 nimmt den Bericht nicht an: %2. Er wird nicht noch einmal gesendet.</translation>
    </message>
    <message id="ID_Host_Upload_Sending">
        <source></source>
        <translation>Der Bericht wird an %1 gesendet …</translation>
    </message>
    <message id="ID_Host_Upload_WrongToken">
        <source></source>
        <translation>das Token fehlt oder ist falsch (HTTP %1)</translation>
    </message>
    <message id="ID_Host_Usage_EmptyName">
        <source></source>
        <translation>--%1 braucht einen Namen, der nicht leer ist</translation>
    </message>
    <message id="ID_Host_Usage_ExtraArgument">
        <source></source>
        <translation>„%1“ ist ein Argument zu viel: siehe --help</translation>
    </message>
    <message id="ID_Host_Usage_LeaveOneOut">
        <source></source>
        <translation>%1 passt nicht zu %2: lassen Sie eines weg</translation>
    </message>
    <message id="ID_Host_Usage_Needs">
        <source></source>
        <translation>--%1 braucht --%2: fügen Sie es hinzu, oder lassen Sie --%1 weg</translation>
    </message>
    <message id="ID_Host_Usage_OtherCommand">
        <source></source>
        <translation>--%1 passt nicht zu %2: siehe --help</translation>
    </message>
    <message id="ID_Host_Usage_SamePlace">
        <source></source>
        <translation>--%1 und --%2 schreiben an denselben Ort (%3): nennen Sie zwei verschiedene</translation>
    </message>
    <message id="ID_Host_Usage_SeeHelp">
        <source></source>
        <translation>%1 Siehe --help.</translation>
    </message>
    <message id="ID_Host_Usage_Takes">
        <source></source>
        <translation>--%1 %2: erwartet wird %3</translation>
    </message>
    <message id="ID_Host_Usage_TheCheck">
        <source></source>
        <translation>der Prüfung</translation>
    </message>
    <message id="ID_Host_Usage_UnknownCommand">
        <source></source>
        <translation>unbekannter Befehl „%1“: siehe --help</translation>
    </message>
    <message id="ID_Host_Verdict_Faulty">
        <source></source>
        <translation>Zu beheben</translation>
    </message>
    <message id="ID_Host_Verdict_Heard">
        <source></source>
        <translation>Gehört</translation>
    </message>
    <message id="ID_Host_Verdict_NotHeard">
        <source></source>
        <translation>Nicht gehört</translation>
    </message>
    <message id="ID_Host_Verdict_NotTried">
        <source></source>
        <translation>Nicht versucht</translation>
    </message>
    <message id="ID_Host_Verdict_Unmeasured">
        <source></source>
        <translation>Nicht gemessen</translation>
    </message>
    <message id="ID_Host_Verdict_Works">
        <source></source>
        <translation>Funktioniert</translation>
    </message>
    <message id="ID_Host_Yes">
        <source></source>
        <translation>Ja</translation>
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
    <message id="ID_Host_Reason_NoServer">
        <source></source>
        <translation>kein Server</translation>
    </message>
    <message id="ID_Host_Reason_NoSuchHost">
        <source></source>
        <translation>der Name des Servers ist unbekannt</translation>
    </message>
    <message id="ID_Host_Remedy">
        <source></source>
        <translation>Was zu tun ist</translation>
    </message>
    <message id="ID_Host_Remedy_NoServer">
        <source></source>
        <translation>Weil kein Server eingestellt ist, wurde nur dieser Computer gemessen: Fragen Sie Ihre Schule nach dem Server und stellen Sie ihn mit --server oder in der Konfigurationsdatei ein.</translation>
    </message>
    <message id="ID_Host_Remedy_NoAnswer">
        <source></source>
        <translation>Der Server hat nicht geantwortet: Prüfen Sie, ob Sie online sind und ob eine Firewall UDP sperrt.</translation>
    </message>
    <message id="ID_Host_Remedy_NoSuchHost">
        <source></source>
        <translation>Der Name des Servers ist unbekannt: Prüfen Sie die Schreibweise und ob Sie online sind.</translation>
    </message>
    <message id="ID_Host_Remedy_Slow">
        <source></source>
        <translation>Die Verbindung ist langsam: Nutzen Sie ein Kabel oder gehen Sie näher an den WLAN-Router, und beenden Sie Downloads und andere Anrufe.</translation>
    </message>
    <message id="ID_Host_Remedy_Lossy">
        <source></source>
        <translation>Unterwegs gehen zu viele Daten verloren: Nutzen Sie ein Kabel oder gehen Sie näher an den WLAN-Router.</translation>
    </message>
    <message id="ID_Host_Remedy_LeftTooSoon">
        <source></source>
        <translation>Der Schritt wurde verlassen, bevor etwas gemessen war: Warten Sie dort, bis die Werte erscheinen.</translation>
    </message>
    <message id="ID_Host_Remedy_Absent">
        <source></source>
        <translation>Es wurde kein Gerät gefunden: Schließen Sie eines an oder schalten Sie es ein, und prüfen Sie erneut.</translation>
    </message>
    <message id="ID_Host_Remedy_Off">
        <source></source>
        <translation>Das Gerät ist in der Liste ausgeschaltet: Wählen Sie dort eines aus.</translation>
    </message>
    <message id="ID_Host_Remedy_Starting">
        <source></source>
        <translation>Das Gerät war noch nicht bereit: Warten Sie etwas länger, bevor Sie antworten.</translation>
    </message>
    <message id="ID_Host_Remedy_Busy">
        <source></source>
        <translation>Ein anderes Programm nutzt das Gerät: Beenden Sie dieses Programm und prüfen Sie erneut.</translation>
    </message>
    <message id="ID_Host_Remedy_Denied">
        <source></source>
        <translation>Das System verweigert den Zugriff auf das Gerät: Erlauben Sie ihn in den Datenschutzeinstellungen.</translation>
    </message>
    <message id="ID_Host_Remedy_Hung">
        <source></source>
        <translation>Das Gerät hat nicht geantwortet: Stecken Sie es aus und wieder ein, oder starten Sie den Computer neu.</translation>
    </message>
    <message id="ID_Host_Remedy_Stalled">
        <source></source>
        <translation>Die Kamera hat kein Bild geliefert: Stecken Sie sie aus und wieder ein, oder wählen Sie eine andere.</translation>
    </message>
    <message id="ID_Host_Remedy_Black">
        <source></source>
        <translation>Das Bild war schwarz: Öffnen Sie die Blende und schalten Sie das Licht ein.</translation>
    </message>
    <message id="ID_Host_Remedy_Frozen">
        <source></source>
        <translation>Das Bild stand still: Stecken Sie die Kamera aus und wieder ein.</translation>
    </message>
    <message id="ID_Host_Remedy_Unplugged">
        <source></source>
        <translation>Das Gerät wurde während der Prüfung getrennt: Schließen Sie es wieder an und prüfen Sie das Kabel.</translation>
    </message>
    <message id="ID_Host_Remedy_NotBuilt">
        <source></source>
        <translation>Dieses Programm kann solche Geräte auf diesem System nicht verwenden, probieren Sie Ihres also in einem anderen Programm aus.</translation>
    </message>
    <message id="ID_Host_Remedy_ServerLost">
        <source></source>
        <translation>Der Bild- und Tondienst des Systems ist ausgefallen: Melden Sie sich ab und wieder an, oder starten Sie den Computer neu.</translation>
    </message>
    <message id="ID_Host_Remedy_Failed">
        <source></source>
        <translation>Das Gerät ist ausgefallen: Schließen Sie es neu an oder versuchen Sie es mit einem anderen.</translation>
    </message>
    <message id="ID_Host_Remedy_Unreadable">
        <source></source>
        <translation>Die Kamera sendet kein Format, das hier angezeigt werden kann: Wählen Sie eine andere, oder stellen Sie an ihr ein anderes Format ein.</translation>
    </message>
    <message id="ID_Host_Remedy_Silent">
        <source></source>
        <translation>Das Mikrofon hat nichts aufgenommen: Sprechen Sie näher daran, prüfen Sie seinen Schalter oder wählen Sie ein anderes in der Liste.</translation>
    </message>
    <message id="ID_Host_Remedy_Muted">
        <source></source>
        <translation>Das Gerät ist stummgeschaltet: Heben Sie die Stummschaltung auf.</translation>
    </message>
    <message id="ID_Host_Remedy_VolumeZero">
        <source></source>
        <translation>Die Lautstärke ist 0: Erhöhen Sie sie.</translation>
    </message>
    <message id="ID_Host_Remedy_WrongSound">
        <source></source>
        <translation>Sie haben ein anderes Geräusch gewählt als das gespielte: Erhöhen Sie die Lautstärke und hören Sie noch einmal hin.</translation>
    </message>
    <message id="ID_Host_Remedy_NotSeen">
        <source></source>
        <translation>Sie haben sich nicht gesehen, obwohl die Kamera Bilder geliefert hat: Prüfen Sie, welche Kamera ausgewählt ist.</translation>
    </message>
    <message id="ID_Host_Remedy_NotHeard">
        <source></source>
        <translation>Sie haben nichts gehört, obwohl ein Geräusch gespielt wurde: Erhöhen Sie die Lautstärke und prüfen Sie, welcher Lautsprecher ausgewählt ist.</translation>
    </message>
    <message id="ID_Host_Remedy_SelfNotHeard">
        <source></source>
        <translation>Sie haben sich nicht gehört, obwohl das Mikrofon aufgenommen hat: Erhöhen Sie die Lautstärke und prüfen Sie, welcher Lautsprecher ausgewählt ist.</translation>
    </message>
    <message id="ID_Host_Window_Title">
        <source></source>
        <translation>Ergebnis der Prüfung</translation>
    </message>
    <message id="ID_Host_Window_Copy">
        <source></source>
        <translation>Kopieren</translation>
    </message>
    <message id="ID_Host_Window_Save">
        <source></source>
        <translation>Speichern…</translation>
    </message>
    <message id="ID_Host_Window_Open">
        <source></source>
        <translation>Bericht öffnen</translation>
    </message>
    <message id="ID_Host_Window_Close">
        <source></source>
        <translation>Schließen</translation>
    </message>
    <message id="ID_Host_Window_Copied">
        <source></source>
        <translation>Der Bericht ist kopiert. Fügen Sie ihn ein, bevor Sie dieses Fenster schließen.</translation>
    </message>
    <message id="ID_Host_Window_Saved">
        <source></source>
        <translation>Der Bericht ist gespeichert in %1</translation>
    </message>
    <message id="ID_Host_Window_NotWritten">
        <source></source>
        <translation>Der Bericht lässt sich nicht nach %1 schreiben. Wählen Sie einen anderen Ort.</translation>
    </message>
    <message id="ID_Host_Window_NotOpened">
        <source></source>
        <translation>Kein Programm konnte den Bericht öffnen. Er steht in %1</translation>
    </message>
</context>
</TS>
