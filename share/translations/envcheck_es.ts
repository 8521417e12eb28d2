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
        <translation>Sin medir: no hay servidor</translation>
    </message>
    <message id="ID_Engine_Camera_Absent">
        <source></source>
        <translation>No se encontró ninguna cámara.
Conecte una a este equipo.</translation>
    </message>
    <message id="ID_Engine_Camera_Black">
        <source></source>
        <translation>La imagen está negra.
Abra la tapa de la cámara o encienda una luz.</translation>
    </message>
    <message id="ID_Engine_Camera_Busy">
        <source></source>
        <translation>Otro programa está usando la cámara.
Cierre ese programa.</translation>
    </message>
    <message id="ID_Engine_Camera_BusyBy">
        <source></source>
        <translation>%1 está usando la cámara.
Cierre ese programa.</translation>
    </message>
    <message id="ID_Engine_Camera_Denied">
        <source></source>
        <translation>El sistema deniega el acceso a la cámara.
Permítalo en los ajustes de privacidad del sistema.</translation>
    </message>
    <message id="ID_Engine_Camera_Failed">
        <source></source>
        <translation>La cámara no funciona.
Desconéctela y vuelva a conectarla, o elija otra.</translation>
    </message>
    <message id="ID_Engine_Camera_Hung">
        <source></source>
        <translation>La cámara no responde.
Desconéctela y vuelva a conectarla, o reinicie el equipo.</translation>
    </message>
    <message id="ID_Engine_Camera_NotBuilt">
        <source></source>
        <translation>Este programa no puede usar cámaras en este sistema.
Pruebe la suya en otro programa.</translation>
    </message>
    <message id="ID_Engine_Camera_ServerLost">
        <source></source>
        <translation>El servicio de cámara de este equipo no está en marcha.
Espere un momento o reinicie el equipo.</translation>
    </message>
    <message id="ID_Engine_Camera_Stalled">
        <source></source>
        <translation>La cámara no envía imágenes.
Desconéctela y vuelva a conectarla, o elija otra.</translation>
    </message>
    <message id="ID_Engine_Camera_Starting">
        <source></source>
        <translation>La cámara se está iniciando…</translation>
    </message>
    <message id="ID_Engine_Camera_Unplugged">
        <source></source>
        <translation>La cámara se ha desconectado.
Vuelva a conectarla o elija otra.</translation>
    </message>
    <message id="ID_Engine_Camera_Unreadable">
        <source></source>
        <translation>Las imágenes de la cámara no se pueden mostrar aquí.
Elija otra cámara u otro formato en sus ajustes.</translation>
    </message>
    <message id="ID_Engine_File_BadEnd">
        <source></source>
        <translation>en Windows un nombre no puede terminar en punto ni en espacio</translation>
    </message>
    <message id="ID_Engine_File_BadLetter">
        <source></source>
        <translation>en Windows un nombre no puede contener &lt; &gt; : " | ? * ni caracteres de control</translation>
    </message>
    <message id="ID_Engine_File_DeadLink">
        <source></source>
        <translation>es un enlace que no lleva a ninguna parte</translation>
    </message>
    <message id="ID_Engine_File_DeviceName">
        <source></source>
        <translation>%1 es el nombre de un dispositivo en Windows</translation>
    </message>
    <message id="ID_Engine_File_DiskSilent">
        <source></source>
        <translation>el disco no responde</translation>
    </message>
    <message id="ID_Engine_File_ForeignLink">
        <source></source>
        <translation>es un enlace que pertenece a otro usuario</translation>
    </message>
    <message id="ID_Engine_File_LockHeld">
        <source></source>
        <translation>otro programa tiene su archivo de bloqueo %1</translation>
    </message>
    <message id="ID_Engine_File_LockNotMade">
        <source></source>
        <translation>no se puede crear su archivo de bloqueo</translation>
    </message>
    <message id="ID_Engine_File_LockNotRegular">
        <source></source>
        <translation>su archivo de bloqueo %1 no es un archivo normal</translation>
    </message>
    <message id="ID_Engine_File_NoFolder">
        <source></source>
        <translation>no se puede crear su carpeta</translation>
    </message>
    <message id="ID_Engine_File_NotMade">
        <source></source>
        <translation>no se puede generar el nuevo contenido; ¿está lleno el disco?</translation>
    </message>
    <message id="ID_Engine_File_NotRegular">
        <source></source>
        <translation>no es un archivo normal</translation>
    </message>
    <message id="ID_Engine_File_TooLarge">
        <source></source>
        <translation>supera los %1 MiB</translation>
    </message>
    <message id="ID_Engine_File_TooManyChanges">
        <source></source>
        <translation>demasiados cambios esperan al disco</translation>
    </message>
    <message id="ID_Engine_Json_Document">
        <source></source>
        <translation>el documento debe ser un objeto</translation>
    </message>
    <message id="ID_Engine_Json_Empty">
        <source></source>
        <translation>no debe estar vacío</translation>
    </message>
    <message id="ID_Engine_Json_Flag">
        <source></source>
        <translation>debe ser true o false</translation>
    </message>
    <message id="ID_Engine_Json_Invalid">
        <source></source>
        <translation>JSON no válido: %1</translation>
    </message>
    <message id="ID_Engine_Json_List">
        <source></source>
        <translation>debe ser una lista</translation>
    </message>
    <message id="ID_Engine_Json_Missing">
        <source></source>
        <translation>falta</translation>
    </message>
    <message id="ID_Engine_Json_Number">
        <source></source>
        <translation>debe ser un número</translation>
    </message>
    <message id="ID_Engine_Json_Object">
        <source></source>
        <translation>debe ser un objeto</translation>
    </message>
    <message id="ID_Engine_Json_ShortList">
        <source></source>
        <translation>debe ser una lista de %1 elementos como máximo</translation>
    </message>
    <message id="ID_Engine_Json_ShortText">
        <source></source>
        <translation>debe ser un texto de %1 caracteres como máximo</translation>
    </message>
    <message id="ID_Engine_Json_Text">
        <source></source>
        <translation>debe ser un texto</translation>
    </message>
    <message id="ID_Engine_Json_Twice">
        <source></source>
        <translation>aparece dos veces</translation>
    </message>
    <message id="ID_Engine_Json_Unknown">
        <source></source>
        <translation>no es un campo conocido aquí</translation>
    </message>
    <message id="ID_Engine_Json_WholeNumber">
        <source></source>
        <translation>debe ser un número entero de %1 a %2</translation>
    </message>
    <message id="ID_Engine_Json_Word">
        <source></source>
        <translation>debe ser una de estas palabras: %1</translation>
    </message>
    <message id="ID_Engine_Json_WordList">
        <source></source>
        <translation>debe ser una lista de estas palabras: %1</translation>
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
    <message id="ID_Engine_NotConnected">
        <source></source>
        <translation>No conectado</translation>
    </message>
    <message id="ID_Engine_Scenario_Base">
        <source></source>
        <translation>debe nombrar un escenario incluido</translation>
    </message>
    <message id="ID_Engine_Scenario_Levels">
        <source></source>
        <translation>debe ser [milisegundos, nivel]: crecientes desde 0, y un nivel de 0 a 1</translation>
    </message>
    <message id="ID_Engine_Scenario_NoDevice">
        <source></source>
        <translation>no nombra ningún %1 de este escenario</translation>
    </message>
    <message id="ID_Engine_Scenario_NoVolume">
        <source></source>
        <translation>una cámara no tiene volumen</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRead">
        <source></source>
        <translation>no se puede leer: %1</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRegular">
        <source></source>
        <translation>no es un archivo normal; indique un archivo de escenario</translation>
    </message>
    <message id="ID_Engine_Scenario_SameId">
        <source></source>
        <translation>debe ser único en su lista</translation>
    </message>
    <message id="ID_Engine_Scenario_TooLarge">
        <source></source>
        <translation>supera 1 MiB; indique un archivo de escenario</translation>
    </message>
    <message id="ID_Engine_Scenario_TooManyDevices">
        <source></source>
        <translation>más de %1 dispositivos distintos de este tipo; conecte uno que ya estuvo antes</translation>
    </message>
    <message id="ID_Engine_Scenario_Unknown">
        <source></source>
        <translation>no hay archivo ni escenario incluido con este nombre (hay %1)</translation>
    </message>
    <message id="ID_Engine_SoundNotBuilt">
        <source></source>
        <translation>Sin sonido: sistema no admitido</translation>
    </message>
    <message id="ID_Engine_SoundServerLost">
        <source></source>
        <translation>El servicio de sonido no está en marcha</translation>
    </message>
    <message id="ID_Engine_SoundServerSilent">
        <source></source>
        <translation>El servicio de sonido no responde</translation>
    </message>
    <message id="ID_Engine_TelephoneQuality">
        <source></source>
        <translation>%1 (calidad telefónica)</translation>
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
        <translation>Pulse «Oír», escuche y elija el sonido que oye.</translation>
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
    <message id="ID_Host_Changes">
        <source></source>
        <translation>Cambios</translation>
    </message>
    <message id="ID_Host_Changes_None">
        <source></source>
        <translation>Nada ha cambiado desde entonces.</translation>
    </message>
    <message id="ID_Host_Check_Loop">
        <source></source>
        <translation>Bucle acústico</translation>
    </message>
    <message id="ID_Host_Config_BadLine">
        <source></source>
        <translation>%1: cada línea debe ser KEY=VALUE, como server=HOST, o un comentario tras un punto y coma; corríjalo ahí</translation>
    </message>
    <message id="ID_Host_Config_BadValue">
        <source></source>
        <translation>%1: %2=%3: admite %4; corríjalo ahí</translation>
    </message>
    <message id="ID_Host_Config_BadVariable">
        <source></source>
        <translation>%1=%2: admite %3</translation>
    </message>
    <message id="ID_Host_Config_UnknownKey">
        <source></source>
        <translation>%1: clave desconocida %2; las claves son server, report-url y report-token-file</translation>
    </message>
    <message id="ID_Host_Config_Unreadable">
        <source></source>
        <translation>%1: no se puede leer como archivo de configuración; ponga ahí un archivo de texto con líneas como server=HOST o elimínelo</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerLost">
        <source></source>
        <translation>El servicio de cámara no está en marcha</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerSilent">
        <source></source>
        <translation>El servicio de cámara no responde</translation>
    </message>
    <message id="ID_Host_Devices_Cameras">
        <source></source>
        <translation>Cámaras</translation>
    </message>
    <message id="ID_Host_Devices_Microphones">
        <source></source>
        <translation>Micrófonos</translation>
    </message>
    <message id="ID_Host_Devices_None">
        <source></source>
        <translation>no se encontró ninguno</translation>
    </message>
    <message id="ID_Host_Devices_NotBuilt">
        <source></source>
        <translation>este programa se compiló sin los dispositivos reales (ENVCHECK_DEVICES): use --platform scripted</translation>
    </message>
    <message id="ID_Host_Devices_Speakers">
        <source></source>
        <translation>Altavoces</translation>
    </message>
    <message id="ID_Host_Display_Gone">
        <source></source>
        <translation>la pantalla ha desaparecido y con ella la comprobación: terminó el servidor X o el compositor de Wayland; inicie la comprobación de nuevo</translation>
    </message>
    <message id="ID_Host_Display_None">
        <source></source>
        <translation>no hay pantalla en la que abrir la comprobación: iníciela desde una sesión de escritorio o con xvfb-run</translation>
    </message>
    <message id="ID_Host_Display_NotOpened">
        <source></source>
        <translation>no se puede abrir la pantalla %1: inicie la comprobación desde una sesión de escritorio o con xvfb-run</translation>
    </message>
    <message id="ID_Host_Exit_AllPassed">
        <source></source>
        <translation>todo correcto</translation>
    </message>
    <message id="ID_Host_Exit_BadInput">
        <source></source>
        <translation>un archivo indicado no se puede usar</translation>
    </message>
    <message id="ID_Host_Exit_CannotWrite">
        <source></source>
        <translation>no se puede escribir un archivo o una carpeta</translation>
    </message>
    <message id="ID_Host_Exit_LeftEarly">
        <source></source>
        <translation>el usuario salió antes del final</translation>
    </message>
    <message id="ID_Host_Exit_PutOut">
        <source></source>
        <translation>el aula cerró la sesión</translation>
    </message>
    <message id="ID_Host_Exit_SomeFailed">
        <source></source>
        <translation>falló alguna prueba</translation>
    </message>
    <message id="ID_Host_Exit_TourProblems">
        <source></source>
        <translation>el recorrido encontró un fallo</translation>
    </message>
    <message id="ID_Host_Exit_Unavailable">
        <source></source>
        <translation>falta una pantalla, un puerto o un servidor</translation>
    </message>
    <message id="ID_Host_Exit_WrongUsage">
        <source></source>
        <translation>uso incorrecto: el mensaje indica la opción</translation>
    </message>
    <message id="ID_Host_Figure_Answered">
        <source></source>
        <translation>Sondas respondidas</translation>
    </message>
    <message id="ID_Host_Figure_Bandwidth">
        <source></source>
        <translation>Frecuencia máxima captada</translation>
    </message>
    <message id="ID_Host_Figure_Black">
        <source></source>
        <translation>Imágenes negras</translation>
    </message>
    <message id="ID_Host_Figure_Brightness">
        <source></source>
        <translation>Brillo</translation>
    </message>
    <message id="ID_Host_Figure_Clipped">
        <source></source>
        <translation>Sonido saturado</translation>
    </message>
    <message id="ID_Host_Figure_DefaultAfter">
        <source></source>
        <translation>Dispositivo predeterminado después</translation>
    </message>
    <message id="ID_Host_Figure_DefaultBefore">
        <source></source>
        <translation>Dispositivo predeterminado antes</translation>
    </message>
    <message id="ID_Host_Figure_Delay">
        <source></source>
        <translation>Ida y vuelta (mediana)</translation>
    </message>
    <message id="ID_Host_Figure_Delay5">
        <source></source>
        <translation>Ida y vuelta (percentil 5)</translation>
    </message>
    <message id="ID_Host_Figure_Delay95">
        <source></source>
        <translation>Ida y vuelta (percentil 95)</translation>
    </message>
    <message id="ID_Host_Figure_FirstPicture">
        <source></source>
        <translation>Tiempo hasta la primera imagen</translation>
    </message>
    <message id="ID_Host_Figure_Frozen">
        <source></source>
        <translation>Imágenes congeladas</translation>
    </message>
    <message id="ID_Host_Figure_Height">
        <source></source>
        <translation>Alto de la imagen</translation>
    </message>
    <message id="ID_Host_Figure_HumFrequency">
        <source></source>
        <translation>Frecuencia del zumbido</translation>
    </message>
    <message id="ID_Host_Figure_HumShare">
        <source></source>
        <translation>Zumbido en el ruido</translation>
    </message>
    <message id="ID_Host_Figure_Jitter">
        <source></source>
        <translation>Fluctuación (jitter)</translation>
    </message>
    <message id="ID_Host_Figure_Level">
        <source></source>
        <translation>Nivel</translation>
    </message>
    <message id="ID_Host_Figure_LoopDelay">
        <source></source>
        <translation>Retardo del altavoz al micrófono</translation>
    </message>
    <message id="ID_Host_Figure_LoopLevel">
        <source></source>
        <translation>Nivel en el micrófono</translation>
    </message>
    <message id="ID_Host_Figure_Loss">
        <source></source>
        <translation>Pérdida de paquetes</translation>
    </message>
    <message id="ID_Host_Figure_Modes">
        <source></source>
        <translation>Modos de la cámara</translation>
    </message>
    <message id="ID_Host_Figure_MovedByUser">
        <source></source>
        <translation>Volumen cambiado por el usuario</translation>
    </message>
    <message id="ID_Host_Figure_MutedAfter">
        <source></source>
        <translation>Silenciado después</translation>
    </message>
    <message id="ID_Host_Figure_MutedBefore">
        <source></source>
        <translation>Silenciado antes</translation>
    </message>
    <message id="ID_Host_Figure_NoiseFloor">
        <source></source>
        <translation>Ruido de fondo</translation>
    </message>
    <message id="ID_Host_Figure_OneWayDelay">
        <source></source>
        <translation>Latencia de ida (mitad de la ida y vuelta)</translation>
    </message>
    <message id="ID_Host_Figure_Peak">
        <source></source>
        <translation>Sonido más fuerte</translation>
    </message>
    <message id="ID_Host_Figure_Pictures">
        <source></source>
        <translation>Imágenes</translation>
    </message>
    <message id="ID_Host_Figure_Program">
        <source></source>
        <translation>En uso por</translation>
    </message>
    <message id="ID_Host_Figure_Rate">
        <source></source>
        <translation>Imágenes por segundo</translation>
    </message>
    <message id="ID_Host_Figure_Seconds">
        <source></source>
        <translation>Tiempo medido</translation>
    </message>
    <message id="ID_Host_Figure_Sent">
        <source></source>
        <translation>Sondas enviadas</translation>
    </message>
    <message id="ID_Host_Figure_SoundHeard">
        <source></source>
        <translation>Sonido captado</translation>
    </message>
    <message id="ID_Host_Figure_SoundPlayed">
        <source></source>
        <translation>Sonido reproducido</translation>
    </message>
    <message id="ID_Host_Figure_VolumeAfter">
        <source></source>
        <translation>Volumen después</translation>
    </message>
    <message id="ID_Host_Figure_VolumeBefore">
        <source></source>
        <translation>Volumen antes</translation>
    </message>
    <message id="ID_Host_Figure_Width">
        <source></source>
        <translation>Ancho de la imagen</translation>
    </message>
    <message id="ID_Host_File_IsFolder">
        <source></source>
        <translation>es una carpeta; indique un archivo dentro de ella</translation>
    </message>
    <message id="ID_Host_File_NameOther">
        <source></source>
        <translation>%1; indique otro archivo</translation>
    </message>
    <message id="ID_Host_File_NoFolder">
        <source></source>
        <translation>no existe la carpeta %1; créela o indique otro archivo</translation>
    </message>
    <message id="ID_Host_File_NoObject">
        <source></source>
        <translation>el documento no es un objeto</translation>
    </message>
    <message id="ID_Host_File_NoReport">
        <source></source>
        <translation>%1 no es un informe en JSON (%2); indique uno escrito por una comprobación</translation>
    </message>
    <message id="ID_Host_File_NoRight">
        <source></source>
        <translation>no tiene permiso para escribir ahí; indique otro archivo</translation>
    </message>
    <message id="ID_Host_File_NotOrdinary">
        <source></source>
        <translation>no es un archivo normal; indique otro</translation>
    </message>
    <message id="ID_Host_File_NotRead">
        <source></source>
        <translation>no se puede leer %1: %2; indique un informe escrito por una comprobación</translation>
    </message>
    <message id="ID_Host_File_NotWritten">
        <source></source>
        <translation>no se puede escribir %1: %2</translation>
    </message>
    <message id="ID_Host_File_TooLarge">
        <source></source>
        <translation>es demasiado grande</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodPicture">
        <source></source>
        <translation>Se respondió que no, pero llegaban imágenes en movimiento.</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodSound">
        <source></source>
        <translation>Se respondió que no, pero el micrófono captaba sonido.</translation>
    </message>
    <message id="ID_Host_Flag_NoToRightSound">
        <source></source>
        <translation>Se respondió que no, pero se eligió el sonido correcto.</translation>
    </message>
    <message id="ID_Host_Flag_YesToBlackPicture">
        <source></source>
        <translation>Se respondió que sí ante una imagen negra.</translation>
    </message>
    <message id="ID_Host_Flag_YesToFrozenPicture">
        <source></source>
        <translation>Se respondió que sí ante una imagen congelada.</translation>
    </message>
    <message id="ID_Host_Flag_YesToMutedSpeaker">
        <source></source>
        <translation>Se respondió que sí con el altavoz silenciado.</translation>
    </message>
    <message id="ID_Host_Flag_YesToSilence">
        <source></source>
        <translation>Se respondió que sí, pero el micrófono no captó nada.</translation>
    </message>
    <message id="ID_Host_Flag_YesToWrongSound">
        <source></source>
        <translation>Se respondió que sí, pero no se eligió el sonido correcto.</translation>
    </message>
    <message id="ID_Host_Flag_YesWithoutPictures">
        <source></source>
        <translation>Se respondió que sí, pero no llegaban imágenes.</translation>
    </message>
    <message id="ID_Host_Grade">
        <source></source>
        <translation>Calidad de la red</translation>
    </message>
    <message id="ID_Host_Grade_Fair">
        <source></source>
        <translation>regular</translation>
    </message>
    <message id="ID_Host_Grade_FairUpTo">
        <source></source>
        <translation>regular hasta %1</translation>
    </message>
    <message id="ID_Host_Grade_Good">
        <source></source>
        <translation>buena</translation>
    </message>
    <message id="ID_Host_Grade_GoodUpTo">
        <source></source>
        <translation>buena hasta %1</translation>
    </message>
    <message id="ID_Host_Grade_Poor">
        <source></source>
        <translation>mala</translation>
    </message>
    <message id="ID_Host_Help_Arguments">
        <source></source>
        <translation>Argumentos:</translation>
    </message>
    <message id="ID_Host_Help_Check">
        <source></source>
        <translation>Comprueba la red, la cámara, el altavoz y el micrófono antes de una clase en línea.</translation>
    </message>
    <message id="ID_Host_Help_Commands">
        <source></source>
        <translation>Comandos:</translation>
    </message>
    <message id="ID_Host_Help_Devices">
        <source></source>
        <translation>Muestra las cámaras, los micrófonos y los altavoces con su estado. Código de salida 0: las listas están completas, aunque no se haya encontrado nada; 69: el servicio de cámara o de sonido no está en marcha o no responde.</translation>
    </message>
    <message id="ID_Host_Help_ExitCodes">
        <source></source>
        <translation>Códigos de salida:</translation>
    </message>
    <message id="ID_Host_Help_File">
        <source></source>
        <translation>Un informe escrito por una comprobación; - es la entrada estándar. Sin él: el informe de la última comprobación.</translation>
    </message>
    <message id="ID_Host_Help_History">
        <source></source>
        <translation>Muestra las comprobaciones anteriores con sus resultados e informes.</translation>
    </message>
    <message id="ID_Host_Help_Network">
        <source></source>
        <translation>Mide la latencia y la pérdida de paquetes y muestra los valores según llegan.</translation>
    </message>
    <message id="ID_Host_Help_NoCommand">
        <source></source>
        <translation>Sin ningún comando se abre la comprobación. Cada comando tiene su propia ayuda (--help).</translation>
    </message>
    <message id="ID_Host_Help_Options">
        <source></source>
        <translation>Opciones:</translation>
    </message>
    <message id="ID_Host_Help_Report">
        <source></source>
        <translation>Muestra informes de comprobaciones anteriores como texto, HTML o JSON, o varios en una tabla.</translation>
    </message>
    <message id="ID_Host_Help_Serve">
        <source></source>
        <translation>Responde a las mediciones de otros equipos, como pequeño servidor STUN, hasta que se detiene.</translation>
    </message>
    <message id="ID_Host_Help_Usage">
        <source></source>
        <translation>Uso: %1</translation>
    </message>
    <message id="ID_Host_Help_UsageOptions">
        <source></source>
        <translation>[opciones]</translation>
    </message>
    <message id="ID_Host_History_NoReport">
        <source></source>
        <translation>aún no hay ningún informe de una comprobación; haga la comprobación o indique el archivo (FILE) de un informe</translation>
    </message>
    <message id="ID_Host_History_None">
        <source></source>
        <translation>No hay comprobaciones anteriores.</translation>
    </message>
    <message id="ID_Host_Language_Unknown">
        <source></source>
        <translation>--language %1: no hay textos en este idioma; indique uno de estos: %2</translation>
    </message>
    <message id="ID_Host_LastGoodRun">
        <source></source>
        <translation>Última comprobación correcta</translation>
    </message>
    <message id="ID_Host_LastGoodRun_None">
        <source></source>
        <translation>No hay ninguna comprobación anterior en la que todo fuera bien.</translation>
    </message>
    <message id="ID_Host_MeasuringFailed">
        <source></source>
        <translation>no se pudo medir: %1</translation>
    </message>
    <message id="ID_Host_Network_Ends">
        <source></source>
        <translation>servidor %1, este equipo %2</translation>
    </message>
    <message id="ID_Host_Network_Figures">
        <source></source>
        <translation>latencia %1 ms, fluctuación %2 ms, pérdida %3 %, sondas enviadas %4, respondidas %5: %6</translation>
    </message>
    <message id="ID_Host_Network_NameServer">
        <source></source>
        <translation>sin medir: sin servidor; indique uno con --server, con %1 o en %2</translation>
    </message>
    <message id="ID_Host_Network_NoAnswer">
        <source></source>
        <translation>sin respuesta, pérdida %1 %, sondas enviadas %2, respondidas %3</translation>
    </message>
    <message id="ID_Host_Network_NoRoute">
        <source></source>
        <translation>no hay ruta al servidor, pérdida %1 %, enviadas %2, respondidas %3</translation>
    </message>
    <message id="ID_Host_Network_NoSuchServer">
        <source></source>
        <translation>no existe ese servidor, pérdida %1 %, sondas enviadas %2, respondidas %3</translation>
    </message>
    <message id="ID_Host_Network_Refused">
        <source></source>
        <translation>el servidor rechaza, pérdida %1 %, enviadas %2, respondidas %3</translation>
    </message>
    <message id="ID_Host_No">
        <source></source>
        <translation>No</translation>
    </message>
    <message id="ID_Host_NoAnswer">
        <source></source>
        <translation>Sin respuesta</translation>
    </message>
    <message id="ID_Host_NotMeasured">
        <source></source>
        <translation>no medido: %1</translation>
    </message>
    <message id="ID_Host_Option_Account">
        <source></source>
        <translation>Cuenta que se muestra; por defecto, el usuario del sistema.</translation>
    </message>
    <message id="ID_Host_Option_Cdn">
        <source></source>
        <translation>CDN que se muestra.</translation>
    </message>
    <message id="ID_Host_Option_Count">
        <source></source>
        <translation>Termina después de N valores; sin esta opción sigue hasta que se detiene.</translation>
    </message>
    <message id="ID_Host_Option_Diagnose">
        <source></source>
        <translation>Mide como --unattended y guarda el informe, los dispositivos, las versiones y el registro en FILE.zip para quien busque la causa. Sin --redact se omiten nombres y direcciones.</translation>
    </message>
    <message id="ID_Host_Option_FilesFrom">
        <source></source>
        <translation>Toma los nombres de informes también de FILE, uno por línea; - es la entrada estándar.</translation>
    </message>
    <message id="ID_Host_Option_Format">
        <source></source>
        <translation>text (por defecto), html o json; para muchos informes room (una tabla), map (una página con un recuadro por informe), csv o jsonl.</translation>
    </message>
    <message id="ID_Host_Option_Help">
        <source></source>
        <translation>Muestra esta ayuda.</translation>
    </message>
    <message id="ID_Host_Option_Json">
        <source></source>
        <translation>Muestra JSON en lugar de una tabla.</translation>
    </message>
    <message id="ID_Host_Option_Language">
        <source></source>
        <translation>Idioma de los textos, como en o zh_CN; por defecto, el del sistema.</translation>
    </message>
    <message id="ID_Host_Option_Loop">
        <source></source>
        <translation>Con --unattended: reproduce además durante un segundo un tono suave ascendente en el altavoz elegido y lo busca con el micrófono elegido. Se oye.</translation>
    </message>
    <message id="ID_Host_Option_Nickname">
        <source></source>
        <translation>Apodo que se muestra; por defecto, el usuario del sistema.</translation>
    </message>
    <message id="ID_Host_Option_Platform">
        <source></source>
        <translation>Dispositivos que se comprueban: devices (los de este equipo, por defecto) o scripted (simulados).</translation>
    </message>
    <message id="ID_Host_Option_Port">
        <source></source>
        <translation>Puerto UDP en el que se responde; por defecto 3478, 0 elige uno libre.</translation>
    </message>
    <message id="ID_Host_Option_Quiet">
        <source></source>
        <translation>No abrir una ventana con el resultado tras una comprobación con fallos.</translation>
    </message>
    <message id="ID_Host_Option_Redact">
        <source></source>
        <translation>Qué se omite: none (nada, por defecto), personal (direcciones, nombres y cuentas) o hash (códigos cortos en su lugar).</translation>
    </message>
    <message id="ID_Host_Option_Report">
        <source></source>
        <translation>Escribe el informe en FILE en lugar del sitio habitual; la extensión (.json, .html o .txt) indica el formato, y - es la salida estándar, como JSON.</translation>
    </message>
    <message id="ID_Host_Option_ReportTokenFile">
        <source></source>
        <translation>Archivo con el token que pide el servidor de informes. Solo usted o un grupo pueden leerlo.</translation>
    </message>
    <message id="ID_Host_Option_ReportUrl">
        <source></source>
        <translation>Dirección a la que se envían el informe y sus códigos. Sin --redact no lleva nombres ni direcciones.</translation>
    </message>
    <message id="ID_Host_Option_Results">
        <source></source>
        <translation>Escribe además los resultados en FILE, como JSON, después de cada cambio; - es la salida estándar, al final.</translation>
    </message>
    <message id="ID_Host_Option_Scenario">
        <source></source>
        <translation>Lo que hacen los dispositivos simulados: un archivo o el nombre de un escenario incluido, como all-well. Implica --platform scripted.</translation>
    </message>
    <message id="ID_Host_Option_Server">
        <source></source>
        <translation>Servidor STUN hasta el que se miden la latencia y la pérdida, también como stun:HOST:PORT. Sin puerto se consultan los registros DNS del dominio (_stun._udp); si no los hay, el puerto es 3478. También pueden indicarlo ENVCHECK_SERVER o un archivo de configuración. Sin servidor no se mide la red: responde este mismo equipo.</translation>
    </message>
    <message id="ID_Host_Option_Tour">
        <source></source>
        <translation>Recorre todos los pasos automáticamente y guarda una imagen de cada uno en FOLDER.</translation>
    </message>
    <message id="ID_Host_Option_Unattended">
        <source></source>
        <translation>Mide sin ventana y sin una persona; --json ARCHIVO (- para la salida estándar) escribe el informe. Códigos de salida: 0 funciona, 1 hay que arreglar algo, 69 falta un servicio o servidor.</translation>
    </message>
    <message id="ID_Host_Option_Verbose">
        <source></source>
        <translation>Escribe también el registro en el terminal.</translation>
    </message>
    <message id="ID_Host_Option_Version">
        <source></source>
        <translation>Muestra la versión.</translation>
    </message>
    <message id="ID_Host_Outcome_BrokenOff">
        <source></source>
        <translation>Sin supervisión: terminó antes de medirlo todo</translation>
    </message>
    <message id="ID_Host_Outcome_Failed">
        <source></source>
        <translation>Terminada con problemas</translation>
    </message>
    <message id="ID_Host_Outcome_Faulty">
        <source></source>
        <translation>Sin supervisión: hay algo que arreglar</translation>
    </message>
    <message id="ID_Host_Outcome_LeftEarly">
        <source></source>
        <translation>Abandonada antes del final</translation>
    </message>
    <message id="ID_Host_Outcome_Passed">
        <source></source>
        <translation>Todo correcto</translation>
    </message>
    <message id="ID_Host_Outcome_PutOut">
        <source></source>
        <translation>El aula cerró la sesión</translation>
    </message>
    <message id="ID_Host_Outcome_Unavailable">
        <source></source>
        <translation>Sin supervisión: falta un servicio, por lo que no se pudo medir todo</translation>
    </message>
    <message id="ID_Host_Outcome_Works">
        <source></source>
        <translation>Sin supervisión: todo lo medido funciona</translation>
    </message>
    <message id="ID_Host_OutputNotWritten">
        <source></source>
        <translation>no se puede escribir la salida; compruebe si el disco está lleno</translation>
    </message>
    <message id="ID_Host_Reason_Absent">
        <source></source>
        <translation>no hay dispositivo</translation>
    </message>
    <message id="ID_Host_Reason_Busy">
        <source></source>
        <translation>otro programa usa el dispositivo</translation>
    </message>
    <message id="ID_Host_Reason_Denied">
        <source></source>
        <translation>el sistema deniega el acceso</translation>
    </message>
    <message id="ID_Host_Reason_Failed">
        <source></source>
        <translation>el dispositivo ha fallado</translation>
    </message>
    <message id="ID_Host_Reason_Hung">
        <source></source>
        <translation>el dispositivo no responde</translation>
    </message>
    <message id="ID_Host_Reason_Muted">
        <source></source>
        <translation>el dispositivo está silenciado</translation>
    </message>
    <message id="ID_Host_Reason_NoAnswer">
        <source></source>
        <translation>el servidor no responde</translation>
    </message>
    <message id="ID_Host_Reason_NoRoute">
        <source></source>
        <translation>no hay ruta al servidor</translation>
    </message>
    <message id="ID_Host_Reason_NotBuilt">
        <source></source>
        <translation>no se admite en este sistema</translation>
    </message>
    <message id="ID_Host_Reason_NotOffered">
        <source></source>
        <translation>este motor no puede hacerlo</translation>
    </message>
    <message id="ID_Host_Reason_NotRecorded">
        <source></source>
        <translation>el motor no lo registra</translation>
    </message>
    <message id="ID_Host_Reason_Off">
        <source></source>
        <translation>el dispositivo está apagado</translation>
    </message>
    <message id="ID_Host_Reason_Refused">
        <source></source>
        <translation>el servidor rechazó la petición</translation>
    </message>
    <message id="ID_Host_Reason_Scripted">
        <source></source>
        <translation>un dispositivo simulado no tiene este valor</translation>
    </message>
    <message id="ID_Host_Reason_ServerLost">
        <source></source>
        <translation>el servicio de sonido no está en marcha</translation>
    </message>
    <message id="ID_Host_Reason_ServerSilent">
        <source></source>
        <translation>el servicio de sonido no responde</translation>
    </message>
    <message id="ID_Host_Reason_Silent">
        <source></source>
        <translation>no llegó nada del dispositivo</translation>
    </message>
    <message id="ID_Host_Reason_StepNotOpened">
        <source></source>
        <translation>no se abrió este paso</translation>
    </message>
    <message id="ID_Host_Reason_Unreadable">
        <source></source>
        <translation>la cámara no envía ningún formato que se pueda mostrar</translation>
    </message>
    <message id="ID_Host_Reason_VolumeZero">
        <source></source>
        <translation>el volumen está en 0</translation>
    </message>
    <message id="ID_Host_Redacted_Hash">
        <source></source>
        <translation>Direcciones, nombres y cuentas se sustituyen por códigos cortos.</translation>
    </message>
    <message id="ID_Host_Redacted_Personal">
        <source></source>
        <translation>Se omiten direcciones, nombres y cuentas.</translation>
    </message>
    <message id="ID_Host_Remedy_Clipping">
        <source></source>
        <translation>El micrófono está demasiado alto y distorsiona: baje su volumen.</translation>
    </message>
    <message id="ID_Host_Remedy_Hum">
        <source></source>
        <translation>El micrófono zumba: pruebe otra toma u otro cable y aléjelo de las fuentes de alimentación.</translation>
    </message>
    <message id="ID_Host_Remedy_LoopNotHeard">
        <source></source>
        <translation>El micrófono no oyó el altavoz: suba el volumen de ambos y compruebe que pertenecen a los mismos auriculares o están en la misma sala.</translation>
    </message>
    <message id="ID_Host_Remedy_ServerSilent">
        <source></source>
        <translation>El servicio de imagen y sonido del sistema no respondió: cierre la sesión y vuelva a entrar, o reinicie el equipo.</translation>
    </message>
    <message id="ID_Host_ReportIsIn">
        <source></source>
        <translation>El informe está en %1</translation>
    </message>
    <message id="ID_Host_Report_Answer">
        <source></source>
        <translation>Respuesta</translation>
    </message>
    <message id="ID_Host_Report_BadTime">
        <source></source>
        <translation>debe ser una fecha como 2026-03-01T08:30:00Z</translation>
    </message>
    <message id="ID_Host_Report_Causes">
        <source></source>
        <translation>Causas</translation>
    </message>
    <message id="ID_Host_Report_Computer">
        <source></source>
        <translation>Equipo</translation>
    </message>
    <message id="ID_Host_Report_Contradiction">
        <source></source>
        <translation>Contradicción</translation>
    </message>
    <message id="ID_Host_Report_Count">
        <source></source>
        <translation>Informes</translation>
    </message>
    <message id="ID_Host_Report_Device">
        <source></source>
        <translation>Dispositivo</translation>
    </message>
    <message id="ID_Host_Report_Id">
        <source></source>
        <translation>Número de informe</translation>
    </message>
    <message id="ID_Host_Report_Later">
        <source></source>
        <translation>Medido después</translation>
    </message>
    <message id="ID_Host_Report_Measurements">
        <source></source>
        <translation>Mediciones</translation>
    </message>
    <message id="ID_Host_Report_Notice">
        <source></source>
        <translation>Nota</translation>
    </message>
    <message id="ID_Host_Report_OtherFormat">
        <source></source>
        <translation>esto no es un informe de la comprobación</translation>
    </message>
    <message id="ID_Host_Report_OtherVersion">
        <source></source>
        <translation>es %1, y este programa lee la versión %2</translation>
    </message>
    <message id="ID_Host_Report_Outcome">
        <source></source>
        <translation>Resultado general</translation>
    </message>
    <message id="ID_Host_Report_Program">
        <source></source>
        <translation>Programa</translation>
    </message>
    <message id="ID_Host_Report_Result">
        <source></source>
        <translation>Resultado</translation>
    </message>
    <message id="ID_Host_Report_RightSound">
        <source></source>
        <translation>Sonido correcto elegido</translation>
    </message>
    <message id="ID_Host_Report_Scripted">
        <source></source>
        <translation>Los dispositivos eran simulados, no los de este equipo.</translation>
    </message>
    <message id="ID_Host_Report_Summary">
        <source></source>
        <translation>Resumen</translation>
    </message>
    <message id="ID_Host_Report_System">
        <source></source>
        <translation>Equipo y cuenta</translation>
    </message>
    <message id="ID_Host_Report_Time">
        <source></source>
        <translation>Fecha y hora</translation>
    </message>
    <message id="ID_Host_Report_Title">
        <source></source>
        <translation>Informe de la comprobación del sistema</translation>
    </message>
    <message id="ID_Host_Serve_Answering">
        <source></source>
        <translation>Respondiendo en el puerto UDP %1. Otros equipos miden el camino hasta aquí con --server stun:HOST:%1</translation>
    </message>
    <message id="ID_Host_Serve_NoPort">
        <source></source>
        <translation>no se puede responder en el puerto UDP %1: %2. Elija otro con --port</translation>
    </message>
    <message id="ID_Host_Serve_NotBuilt">
        <source></source>
        <translation>serve necesita un programa compilado con los dispositivos reales (ENVCHECK_DEVICES)</translation>
    </message>
    <message id="ID_Host_State_Absent">
        <source></source>
        <translation>no conectado</translation>
    </message>
    <message id="ID_Host_State_Busy">
        <source></source>
        <translation>en uso</translation>
    </message>
    <message id="ID_Host_State_Denied">
        <source></source>
        <translation>acceso denegado</translation>
    </message>
    <message id="ID_Host_State_Failed">
        <source></source>
        <translation>con fallos</translation>
    </message>
    <message id="ID_Host_State_Hung">
        <source></source>
        <translation>no responde</translation>
    </message>
    <message id="ID_Host_State_Off">
        <source></source>
        <translation>apagado</translation>
    </message>
    <message id="ID_Host_State_Ready">
        <source></source>
        <translation>listo</translation>
    </message>
    <message id="ID_Host_State_Silent">
        <source></source>
        <translation>sin señal</translation>
    </message>
    <message id="ID_Host_State_Working">
        <source></source>
        <translation>funciona</translation>
    </message>
    <message id="ID_Host_Takes_Ending">
        <source></source>
        <translation>un nombre que termine en %1, o - para la salida estándar</translation>
    </message>
    <message id="ID_Host_Takes_FileEnding">
        <source></source>
        <translation>un nombre de archivo que termine en %1</translation>
    </message>
    <message id="ID_Host_Takes_Number">
        <source></source>
        <translation>un número del %1 al %2</translation>
    </message>
    <message id="ID_Host_Takes_OneOf">
        <source></source>
        <translation>uno de estos valores: %1</translation>
    </message>
    <message id="ID_Host_Takes_Server">
        <source></source>
        <translation>HOST o HOST:PORT, con o sin stun: delante, como stun:stun.example.org:3478</translation>
    </message>
    <message id="ID_Host_Takes_WebAddress">
        <source></source>
        <translation>una dirección http o https</translation>
    </message>
    <message id="ID_Host_Token_NoToken">
        <source></source>
        <translation>%1: no es un token; debe ser una línea de letras, cifras y - . _ ~ + /, con = al final</translation>
    </message>
    <message id="ID_Host_Token_NotEncrypted">
        <source></source>
        <translation>%1: un token solo se envía por https; use una dirección https o ningún token</translation>
    </message>
    <message id="ID_Host_Token_NotRead">
        <source></source>
        <translation>no se puede leer %1: %2; indique un archivo con el token del servidor de informes</translation>
    </message>
    <message id="ID_Host_Token_Open">
        <source></source>
        <translation>%1 contiene un token y cualquier usuario puede leerlo o escribirlo; cámbielo con: chmod o= %1</translation>
    </message>
    <message id="ID_Host_Tour_Done">
        <source></source>
        <translation>%1 imágenes guardadas en %2; index.html las muestra todas.</translation>
    </message>
    <message id="ID_Host_Tour_NoFolder">
        <source></source>
        <translation>--tour %1: no se puede crear esta carpeta; indique otra</translation>
    </message>
    <message id="ID_Host_Tour_NotWritten">
        <source></source>
        <translation>%1: %2; indique otra carpeta</translation>
    </message>
    <message id="ID_Host_Upload_Kept">
        <source></source>
        <translation>El informe no ha llegado a %1: %2. Se conserva y la próxima ejecución lo envía otra vez.</translation>
    </message>
    <message id="ID_Host_Upload_NoAnswer">
        <source></source>
        <translation>no hubo respuesta a tiempo</translation>
    </message>
    <message id="ID_Host_Upload_Refused">
        <source></source>
        <translation>%1 no acepta el informe: %2. No se envía otra vez.</translation>
    </message>
    <message id="ID_Host_Upload_Sending">
        <source></source>
        <translation>Enviando el informe a %1 …</translation>
    </message>
    <message id="ID_Host_Upload_WrongToken">
        <source></source>
        <translation>falta el token o es incorrecto (HTTP %1)</translation>
    </message>
    <message id="ID_Host_Usage_EmptyName">
        <source></source>
        <translation>--%1 necesita un nombre que no esté vacío</translation>
    </message>
    <message id="ID_Host_Usage_ExtraArgument">
        <source></source>
        <translation>sobra el argumento «%1»: vea --help</translation>
    </message>
    <message id="ID_Host_Usage_LeaveOneOut">
        <source></source>
        <translation>%1 no se puede usar con %2: quite una de las dos</translation>
    </message>
    <message id="ID_Host_Usage_Needs">
        <source></source>
        <translation>--%1 necesita --%2: añádalo o quite --%1</translation>
    </message>
    <message id="ID_Host_Usage_OtherCommand">
        <source></source>
        <translation>--%1 no se puede usar con %2: vea --help</translation>
    </message>
    <message id="ID_Host_Usage_SamePlace">
        <source></source>
        <translation>--%1 y --%2 escribirían en el mismo sitio (%3): indique dos distintos</translation>
    </message>
    <message id="ID_Host_Usage_SeeHelp">
        <source></source>
        <translation>%1 Vea --help.</translation>
    </message>
    <message id="ID_Host_Usage_Takes">
        <source></source>
        <translation>--%1 %2: se espera %3</translation>
    </message>
    <message id="ID_Host_Usage_TheCheck">
        <source></source>
        <translation>la comprobación</translation>
    </message>
    <message id="ID_Host_Usage_UnknownCommand">
        <source></source>
        <translation>comando desconocido «%1»: vea --help</translation>
    </message>
    <message id="ID_Host_Verdict_Faulty">
        <source></source>
        <translation>Hay que arreglarlo</translation>
    </message>
    <message id="ID_Host_Verdict_Heard">
        <source></source>
        <translation>Oído</translation>
    </message>
    <message id="ID_Host_Verdict_NotHeard">
        <source></source>
        <translation>No oído</translation>
    </message>
    <message id="ID_Host_Verdict_NotTried">
        <source></source>
        <translation>No probado</translation>
    </message>
    <message id="ID_Host_Verdict_Unmeasured">
        <source></source>
        <translation>No medido</translation>
    </message>
    <message id="ID_Host_Verdict_Works">
        <source></source>
        <translation>Funciona</translation>
    </message>
    <message id="ID_Host_Yes">
        <source></source>
        <translation>Sí</translation>
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
        <translation>Iniciar la comprobación</translation>
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
    <message id="ID_Host_Reason_NoServer">
        <source></source>
        <translation>no hay servidor</translation>
    </message>
    <message id="ID_Host_Reason_NoSuchHost">
        <source></source>
        <translation>no se conoce el nombre del servidor</translation>
    </message>
    <message id="ID_Host_Remedy">
        <source></source>
        <translation>Qué hacer</translation>
    </message>
    <message id="ID_Host_Remedy_NoServer">
        <source></source>
        <translation>Solo se midió este equipo porque no hay servidor: pida a su centro el nombre del servidor e indíquelo con --server o en el archivo de configuración.</translation>
    </message>
    <message id="ID_Host_Remedy_NoAnswer">
        <source></source>
        <translation>El servidor no respondió: compruebe que tiene conexión y que ningún cortafuegos bloquea UDP.</translation>
    </message>
    <message id="ID_Host_Remedy_NoSuchHost">
        <source></source>
        <translation>No se conoce el nombre del servidor: compruebe cómo está escrito y que tiene conexión.</translation>
    </message>
    <message id="ID_Host_Remedy_Slow">
        <source></source>
        <translation>La conexión es lenta: use un cable o acérquese al router wifi, y detenga descargas y otras llamadas.</translation>
    </message>
    <message id="ID_Host_Remedy_Lossy">
        <source></source>
        <translation>Se pierden demasiados datos por el camino: use un cable o acérquese al router wifi.</translation>
    </message>
    <message id="ID_Host_Remedy_LeftTooSoon">
        <source></source>
        <translation>Se dejó el paso antes de medir nada: espere allí hasta que aparezcan los valores.</translation>
    </message>
    <message id="ID_Host_Remedy_Absent">
        <source></source>
        <translation>No se encontró ningún dispositivo: conecte uno o enciéndalo y repita la prueba.</translation>
    </message>
    <message id="ID_Host_Remedy_Off">
        <source></source>
        <translation>El dispositivo está desactivado en la lista: elija uno allí.</translation>
    </message>
    <message id="ID_Host_Remedy_Starting">
        <source></source>
        <translation>El dispositivo aún se estaba iniciando: espere un poco más antes de responder.</translation>
    </message>
    <message id="ID_Host_Remedy_Busy">
        <source></source>
        <translation>Otro programa usa el dispositivo: cierre ese programa y repita la prueba.</translation>
    </message>
    <message id="ID_Host_Remedy_Denied">
        <source></source>
        <translation>El sistema deniega el acceso al dispositivo: permítalo en los ajustes de privacidad.</translation>
    </message>
    <message id="ID_Host_Remedy_Hung">
        <source></source>
        <translation>El dispositivo no respondió: desconéctelo y vuelva a conectarlo, o reinicie el equipo.</translation>
    </message>
    <message id="ID_Host_Remedy_Stalled">
        <source></source>
        <translation>La cámara no envió imagen: desconéctela y vuelva a conectarla, o elija otra.</translation>
    </message>
    <message id="ID_Host_Remedy_Black">
        <source></source>
        <translation>La imagen era negra: abra la tapa de la cámara y encienda la luz.</translation>
    </message>
    <message id="ID_Host_Remedy_Frozen">
        <source></source>
        <translation>La imagen no se movía: desconecte la cámara y vuelva a conectarla.</translation>
    </message>
    <message id="ID_Host_Remedy_Unplugged">
        <source></source>
        <translation>El dispositivo se desconectó durante la prueba: vuelva a conectarlo y revise el cable.</translation>
    </message>
    <message id="ID_Host_Remedy_NotBuilt">
        <source></source>
        <translation>Este programa no puede usar estos dispositivos en este sistema, así que pruebe el suyo en otro programa.</translation>
    </message>
    <message id="ID_Host_Remedy_ServerLost">
        <source></source>
        <translation>El servicio de imagen y sonido del sistema se detuvo: cierre la sesión y vuelva a entrar, o reinicie el equipo.</translation>
    </message>
    <message id="ID_Host_Remedy_Failed">
        <source></source>
        <translation>El dispositivo falló: vuelva a conectarlo o pruebe con otro.</translation>
    </message>
    <message id="ID_Host_Remedy_Unreadable">
        <source></source>
        <translation>La cámara no envía ningún formato que se pueda mostrar aquí: elija otra cámara u otro formato en sus ajustes.</translation>
    </message>
    <message id="ID_Host_Remedy_Silent">
        <source></source>
        <translation>El micrófono no grabó nada: hable más cerca, revise su interruptor o elija otro en la lista.</translation>
    </message>
    <message id="ID_Host_Remedy_Muted">
        <source></source>
        <translation>El dispositivo está silenciado: active el sonido.</translation>
    </message>
    <message id="ID_Host_Remedy_VolumeZero">
        <source></source>
        <translation>El volumen es 0: súbalo.</translation>
    </message>
    <message id="ID_Host_Remedy_WrongSound">
        <source></source>
        <translation>Eligió un sonido distinto del que se reprodujo: suba el volumen y escuche otra vez.</translation>
    </message>
    <message id="ID_Host_Remedy_NotSeen">
        <source></source>
        <translation>Usted no se vio aunque la cámara envió imágenes: compruebe qué cámara está elegida.</translation>
    </message>
    <message id="ID_Host_Remedy_NotHeard">
        <source></source>
        <translation>Usted no oyó nada aunque se reprodujo un sonido: suba el volumen y compruebe qué altavoz está elegido.</translation>
    </message>
    <message id="ID_Host_Remedy_SelfNotHeard">
        <source></source>
        <translation>Usted no se oyó aunque el micrófono grabó sonido: suba el volumen y compruebe qué altavoz está elegido.</translation>
    </message>
    <message id="ID_Host_Window_Title">
        <source></source>
        <translation>Resultado de la prueba</translation>
    </message>
    <message id="ID_Host_Window_Copy">
        <source></source>
        <translation>Copiar</translation>
    </message>
    <message id="ID_Host_Window_Save">
        <source></source>
        <translation>Guardar…</translation>
    </message>
    <message id="ID_Host_Window_Open">
        <source></source>
        <translation>Abrir informe</translation>
    </message>
    <message id="ID_Host_Window_Close">
        <source></source>
        <translation>Cerrar</translation>
    </message>
    <message id="ID_Host_Window_Copied">
        <source></source>
        <translation>El informe está copiado. Péguelo antes de cerrar esta ventana.</translation>
    </message>
    <message id="ID_Host_Window_Saved">
        <source></source>
        <translation>El informe se guardó en %1</translation>
    </message>
    <message id="ID_Host_Window_NotWritten">
        <source></source>
        <translation>No se puede escribir el informe en %1. Elija otro lugar.</translation>
    </message>
    <message id="ID_Host_Window_NotOpened">
        <source></source>
        <translation>Ningún programa pudo abrir el informe. Está en %1</translation>
    </message>
</context>
</TS>
