<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name></name>
    <message id="ID_CameraPage_1">
        <source></source>
        <translation>1. Compruebe que el dispositivo esté conectado y seleccionado.</translation>
    </message>
    <message id="ID_CameraPage_2">
        <source></source>
        <translation>2. Cierre otros programas que usen la cámara.</translation>
    </message>
    <message id="ID_CameraPage_3">
        <source></source>
        <translation>3. Abra la tapa de la cámara o enciéndala con su tecla.</translation>
    </message>
    <message id="ID_CameraPage_4">
        <source></source>
        <translation>4. Permita usar la cámara en los ajustes de privacidad.</translation>
    </message>
    <message id="ID_CameraPage_5">
        <source></source>
        <translation>5. Reinicie el equipo o pruebe otro dispositivo.</translation>
    </message>
    <message id="ID_CameraPage_Camera">
        <source></source>
        <translation>Cámara:</translation>
    </message>
    <message id="ID_CameraPage_CameraDisabled">
        <source></source>
        <translation>La cámara está apagada</translation>
    </message>
    <message id="ID_CameraPage_CannotSee">
        <source></source>
        <translation>No, no me veo</translation>
    </message>
    <message id="ID_CameraPage_ClickHere">
        <source></source>
        <translation>¿No se ve? Pulse aquí</translation>
    </message>
    <message id="ID_CameraPage_DisabledWillMakeCameraUnusable">
        <source></source>
        <translation>La cámara está apagada. Elija una aquí o actívela.</translation>
    </message>
    <message id="ID_CameraPage_No">
        <source></source>
        <translation>No, no me veo</translation>
    </message>
    <message id="ID_CameraPage_NoCameraImageWasDetected">
        <source></source>
        <translation>La cámara no da imagen</translation>
    </message>
    <message id="ID_CameraPage_NotDetected">
        <source></source>
        <translation>Prueba sin respuesta</translation>
    </message>
    <message id="ID_CameraPage_Yes">
        <source></source>
        <translation>Sí, me veo</translation>
    </message>
    <message id="ID_CameraPage_choseNo">
        <source></source>
        <translation>No ve su imagen</translation>
    </message>
    <message id="ID_Camera_Check">
        <source></source>
        <translation>Cámara</translation>
    </message>
    <message id="ID_CheckResultPage_Abnormal">
        <source></source>
        <translation>Con fallos</translation>
    </message>
    <message id="ID_CheckResultPage_CheckEquipmentAndRetest">
        <source></source>
        <translation>Revíselo y repita la prueba.</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentAbnormal">
        <source></source>
        <translation>Algo no funciona</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentNormal">
        <source></source>
        <translation>Todo funciona</translation>
    </message>
    <message id="ID_CheckResultPage_Headphone">
        <source></source>
        <translation>Altavoz</translation>
    </message>
    <message id="ID_CheckResultPage_Normal">
        <source></source>
        <translation>Correcto</translation>
    </message>
    <message id="ID_CheckResultPage_OK">
        <source></source>
        <translation>Ya puede entrar en clase.</translation>
    </message>
    <message id="ID_CheckResultPage_Redetect">
        <source></source>
        <translation>Repetir</translation>
    </message>
    <message id="ID_CheckResultPage_System">
        <source></source>
        <translation>Sistema</translation>
    </message>
    <message id="ID_ContentPage_NotFinishedIfLeave">
        <source></source>
        <translation>La comprobación no ha terminado. ¿Desea salir?</translation>
    </message>
    <message id="ID_Engine_BuiltInResponder">
        <source></source>
        <translation>Este equipo (servidor interno)</translation>
    </message>
    <message id="ID_Engine_NoCamera">
        <source></source>
        <translation>Sin cámara</translation>
    </message>
    <message id="ID_Engine_NoMicrophone">
        <source></source>
        <translation>Sin micrófono</translation>
    </message>
    <message id="ID_Engine_NoSpeaker">
        <source></source>
        <translation>No se encontró ningún altavoz</translation>
    </message>
    <message id="ID_Engine_NoSpeakerSelected">
        <source></source>
        <translation>Ningún altavoz elegido</translation>
    </message>
    <message id="ID_HeadsetPage_2">
        <source></source>
        <translation>2. Suba el volumen y compruebe que no está silenciado.</translation>
    </message>
    <message id="ID_HeadsetPage_3">
        <source></source>
        <translation>3. Introduzca bien el conector o reconecte el Bluetooth.</translation>
    </message>
    <message id="ID_HeadsetPage_4">
        <source></source>
        <translation>4. Elija la misma salida en los ajustes de sonido del sistema.</translation>
    </message>
    <message id="ID_HeadsetPage_Bubble">
        <source></source>
        <translation>Burbujas</translation>
    </message>
    <message id="ID_HeadsetPage_CanHear">
        <source></source>
        <translation>Sí, lo oigo</translation>
    </message>
    <message id="ID_HeadsetPage_CanNotHear">
        <source></source>
        <translation>No, no lo oigo</translation>
    </message>
    <message id="ID_HeadsetPage_ChoseWrong">
        <source></source>
        <translation>No se eligió el sonido correcto</translation>
    </message>
    <message id="ID_HeadsetPage_ClickHere">
        <source></source>
        <translation>¿No oye el sonido? Pulse aquí</translation>
    </message>
    <message id="ID_HeadsetPage_Doorbell">
        <source></source>
        <translation>Timbre</translation>
    </message>
    <message id="ID_HeadsetPage_Piano">
        <source></source>
        <translation>Piano</translation>
    </message>
    <message id="ID_HeadsetPage_Play">
        <source></source>
        <translation>Oír</translation>
    </message>
    <message id="ID_HeadsetPage_PlayAgain">
        <source></source>
        <translation>Repetir</translation>
    </message>
    <message id="ID_HeadsetPage_Playing">
        <source></source>
        <translation>Suena…</translation>
    </message>
    <message id="ID_HeadsetPage_PleaseSelectTheAnswer">
        <source></source>
        <translation>¿Qué sonido oye?</translation>
    </message>
    <message id="ID_HeadsetPage_Saxophone">
        <source></source>
        <translation>Saxofón</translation>
    </message>
    <message id="ID_HeadsetPage_Seagull">
        <source></source>
        <translation>Gaviota</translation>
    </message>
    <message id="ID_HeadsetPage_Shutter">
        <source></source>
        <translation>Obturador</translation>
    </message>
    <message id="ID_HeadsetPage_Speaker">
        <source></source>
        <translation>Altavoz:</translation>
    </message>
    <message id="ID_HeadsetPage_Thunder">
        <source></source>
        <translation>Trueno</translation>
    </message>
    <message id="ID_HeadsetPage_Tip">
        <source></source>
        <translation>Pulse el botón de reproducir, escuche y elija el sonido que oye.</translation>
    </message>
    <message id="ID_HeadsetPage_Typing">
        <source></source>
        <translation>Teclado</translation>
    </message>
    <message id="ID_HeadsetPage_choseNo">
        <source></source>
        <translation>No oye el sonido</translation>
    </message>
    <message id="ID_HeadsetPage_play">
        <source></source>
        <translation>Oír</translation>
    </message>
    <message id="ID_HeadsetPage_sound0">
        <source></source>
        <translation>Sonido 1</translation>
    </message>
    <message id="ID_HeadsetPage_sound1">
        <source></source>
        <translation>Sonido 2</translation>
    </message>
    <message id="ID_HeadsetPage_sound2">
        <source></source>
        <translation>Sonido 3</translation>
    </message>
    <message id="ID_HeadsetPage_sound3">
        <source></source>
        <translation>Sonido 4</translation>
    </message>
    <message id="ID_Kestrel_SystemTesting">
        <source></source>
        <translation>Comprobación del sistema</translation>
    </message>
    <message id="ID_MessageBox_Critical">
        <source></source>
        <translation>Error</translation>
    </message>
    <message id="ID_MessageBox_Information">
        <source></source>
        <translation>Información</translation>
    </message>
    <message id="ID_MessageBox_Question">
        <source></source>
        <translation>Pregunta</translation>
    </message>
    <message id="ID_MessageBox_Warning">
        <source></source>
        <translation>Advertencia</translation>
    </message>
    <message id="ID_Microphone">
        <source></source>
        <translation>Micrófono:</translation>
    </message>
    <message id="ID_MicrophonePage_2">
        <source></source>
        <translation>2. Active el micrófono: busque un interruptor o una tecla.</translation>
    </message>
    <message id="ID_MicrophonePage_3">
        <source></source>
        <translation>3. Suba el volumen y hable cerca del micrófono.</translation>
    </message>
    <message id="ID_MicrophonePage_4">
        <source></source>
        <translation>4. Permita usar el micrófono en los ajustes de privacidad.</translation>
    </message>
    <message id="ID_MicrophonePage_Again">
        <source></source>
        <translation>Repetir</translation>
    </message>
    <message id="ID_MicrophonePage_CanHearOrSee">
        <source></source>
        <translation>Sí, oigo y veo</translation>
    </message>
    <message id="ID_MicrophonePage_CanNotHearOrSee">
        <source></source>
        <translation>No, no oigo o no veo</translation>
    </message>
    <message id="ID_MicrophonePage_ChoseNo">
        <source></source>
        <translation>No se oye o no ve la barra</translation>
    </message>
    <message id="ID_MicrophonePage_ClickHere">
        <source></source>
        <translation>¿No se oye o no ve la barra? Pulse aquí</translation>
    </message>
    <message id="ID_MicrophonePage_DisabledWillMakeMicrophoneUnusable">
        <source></source>
        <translation>El micrófono está apagado. Elija uno aquí o actívelo.</translation>
    </message>
    <message id="ID_MicrophonePage_MayNoisy">
        <source></source>
        <translation>Por encima de 100 puede haber ruido.</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneDisabled">
        <source></source>
        <translation>El micrófono está apagado</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneTest">
        <source></source>
        <translation>Pulse «Grabar» y cuente en voz alta del 1 al 10. Escuche su voz y observe si se mueve la barra verde.</translation>
    </message>
    <message id="ID_MicrophonePage_NoMicrophoneWasDetected">
        <source></source>
        <translation>No se encontró ningún micrófono</translation>
    </message>
    <message id="ID_MicrophonePage_NoVoiceWasRecorded">
        <source></source>
        <translation>El micrófono no capta sonido</translation>
    </message>
    <message id="ID_MicrophonePage_OfS">
        <source></source>
        <translation>%1 s</translation>
    </message>
    <message id="ID_MicrophonePage_Recording">
        <source></source>
        <translation>Hable…</translation>
    </message>
    <message id="ID_Microphone_Check">
        <source></source>
        <translation>Micro</translation>
    </message>
    <message id="ID_NetworkPage_1">
        <source></source>
        <translation>1. Acérquese al router wifi o use un cable de red.</translation>
    </message>
    <message id="ID_NetworkPage_2">
        <source></source>
        <translation>2. Detenga descargas y vídeos, también en otros dispositivos.</translation>
    </message>
    <message id="ID_NetworkPage_3">
        <source></source>
        <translation>3. Desactive la VPN y el proxy, o reinicie el router.</translation>
    </message>
    <message id="ID_NetworkPage_Account">
        <source></source>
        <translation>Cuenta:</translation>
    </message>
    <message id="ID_NetworkPage_AvailableCacheSpace">
        <source></source>
        <translation>Caché libre:</translation>
    </message>
    <message id="ID_NetworkPage_CPU">
        <source></source>
        <translation>Procesador:</translation>
    </message>
    <message id="ID_NetworkPage_ClickHere">
        <source></source>
        <translation>¿Red lenta o inestable? Pulse aquí</translation>
    </message>
    <message id="ID_NetworkPage_Client">
        <source></source>
        <translation>Cliente:</translation>
    </message>
    <message id="ID_NetworkPage_LostRate">
        <source></source>
        <translation>Tasa de pérdida:</translation>
    </message>
    <message id="ID_NetworkPage_NetworkDelay">
        <source></source>
        <translation>Latencia de red:</translation>
    </message>
    <message id="ID_NetworkPage_NetworkSlowOrUnstable">
        <source></source>
        <translation>La red es lenta o inestable</translation>
    </message>
    <message id="ID_NetworkPage_OS">
        <source></source>
        <translation>Sistema:</translation>
    </message>
    <message id="ID_NewLogin_Server">
        <source></source>
        <translation>Servidor:</translation>
    </message>
    <message id="ID_Next">
        <source></source>
        <translation>Siguiente</translation>
    </message>
    <message id="ID_Nickname_NetworkPage">
        <source></source>
        <translation>Apodo:</translation>
    </message>
    <message id="ID_OK">
        <source></source>
        <translation>Aceptar</translation>
    </message>
    <message id="ID_Record">
        <source></source>
        <translation>Grabar</translation>
    </message>
    <message id="ID_Skip">
        <source></source>
        <translation>Omitir</translation>
    </message>
    <message id="ID_Volume">
        <source></source>
        <translation>Nivel:</translation>
    </message>
    <message id="ID_WelcomePage_StartTest">
        <source></source>
        <translation>Empezar la prueba</translation>
    </message>
    <message id="ID_WelcomePage_Welcome">
        <source></source>
        <translation>Le damos la bienvenida al aula virtual</translation>
    </message>
    <message id="ID_hardwaremgrinterface_NoSpeakerFound">
        <source></source>
        <translation>No se encontró ningún altavoz</translation>
    </message>
    <message id="ID_lumcamera_NoWebcamFound">
        <source></source>
        <translation>No se encontró ninguna cámara</translation>
    </message>
</context>
</TS>
