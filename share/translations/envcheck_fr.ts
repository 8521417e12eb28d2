<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name></name>
    <message id="ID_CameraPage_1">
        <source></source>
        <translation>1. Vérifiez que l’appareil est branché et choisi dans la liste.</translation>
    </message>
    <message id="ID_CameraPage_2">
        <source></source>
        <translation>2. Fermez les autres programmes qui utilisent la caméra.</translation>
    </message>
    <message id="ID_CameraPage_3">
        <source></source>
        <translation>3. Ouvrez le cache de l’objectif ou allumez la caméra.</translation>
    </message>
    <message id="ID_CameraPage_4">
        <source></source>
        <translation>4. Autorisez la caméra dans les paramètres de confidentialité.</translation>
    </message>
    <message id="ID_CameraPage_5">
        <source></source>
        <translation>5. Redémarrez l’ordinateur ou essayez un autre appareil.</translation>
    </message>
    <message id="ID_CameraPage_Camera">
        <source></source>
        <translation>Vidéo :</translation>
    </message>
    <message id="ID_CameraPage_CameraDisabled">
        <source></source>
        <translation>La caméra est désactivée</translation>
    </message>
    <message id="ID_CameraPage_CannotSee">
        <source></source>
        <translation>Je ne vois rien</translation>
    </message>
    <message id="ID_CameraPage_ClickHere">
        <source></source>
        <translation>Vous ne vous voyez pas ? Cliquez ici</translation>
    </message>
    <message id="ID_CameraPage_DisabledWillMakeCameraUnusable">
        <source></source>
        <translation>La caméra est désactivée. Choisissez-en une ou activez-la.</translation>
    </message>
    <message id="ID_CameraPage_No">
        <source></source>
        <translation>Je ne vois rien</translation>
    </message>
    <message id="ID_CameraPage_NoCameraImageWasDetected">
        <source></source>
        <translation>La caméra ne donne pas d’image</translation>
    </message>
    <message id="ID_CameraPage_NotDetected">
        <source></source>
        <translation>Ce test est resté sans réponse</translation>
    </message>
    <message id="ID_CameraPage_Yes">
        <source></source>
        <translation>Oui, je me vois</translation>
    </message>
    <message id="ID_CameraPage_choseNo">
        <source></source>
        <translation>Vous ne vous voyez pas</translation>
    </message>
    <message id="ID_Camera_Check">
        <source></source>
        <translation>Caméra</translation>
    </message>
    <message id="ID_CheckResultPage_Abnormal">
        <source></source>
        <translation>Échec</translation>
    </message>
    <message id="ID_CheckResultPage_CheckEquipmentAndRetest">
        <source></source>
        <translation>Vérifiez et testez à nouveau.</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentAbnormal">
        <source></source>
        <translation>Problème détecté</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentNormal">
        <source></source>
        <translation>Tout fonctionne</translation>
    </message>
    <message id="ID_CheckResultPage_Headphone">
        <source></source>
        <translation>Son</translation>
    </message>
    <message id="ID_CheckResultPage_Normal">
        <source></source>
        <translation>Réussi</translation>
    </message>
    <message id="ID_CheckResultPage_OK">
        <source></source>
        <translation>Tout est prêt pour le cours.</translation>
    </message>
    <message id="ID_CheckResultPage_Redetect">
        <source></source>
        <translation>Retester</translation>
    </message>
    <message id="ID_CheckResultPage_System">
        <source></source>
        <translation>Réseau</translation>
    </message>
    <message id="ID_ContentPage_NotFinishedIfLeave">
        <source></source>
        <translation>La vérification n’est pas terminée. Voulez-vous quitter ?</translation>
    </message>
    <message id="ID_Engine_BuiltInResponder">
        <source></source>
        <translation>Non mesuré : aucun serveur</translation>
    </message>
    <message id="ID_Engine_Camera_Absent">
        <source></source>
        <translation>Aucune caméra trouvée.
Branchez-en une à cet ordinateur.</translation>
    </message>
    <message id="ID_Engine_Camera_Black">
        <source></source>
        <translation>L'image est noire.
Ouvrez le cache de l'objectif ou allumez une lumière.</translation>
    </message>
    <message id="ID_Engine_Camera_Busy">
        <source></source>
        <translation>Un autre programme utilise la caméra.
Fermez ce programme.</translation>
    </message>
    <message id="ID_Engine_Camera_BusyBy">
        <source></source>
        <translation>%1 utilise la caméra.
Fermez ce programme.</translation>
    </message>
    <message id="ID_Engine_Camera_Denied">
        <source></source>
        <translation>Le système refuse l'accès à la caméra.
Autorisez-le dans les paramètres de confidentialité du système.</translation>
    </message>
    <message id="ID_Engine_Camera_Failed">
        <source></source>
        <translation>La caméra ne fonctionne pas.
Débranchez-la puis rebranchez-la, ou choisissez-en une autre.</translation>
    </message>
    <message id="ID_Engine_Camera_Hung">
        <source></source>
        <translation>La caméra ne répond pas.
Débranchez-la puis rebranchez-la, ou redémarrez l'ordinateur.</translation>
    </message>
    <message id="ID_Engine_Camera_NotBuilt">
        <source></source>
        <translation>Ce programme ne peut pas utiliser de caméras sur ce système.
Essayez la vôtre dans un autre programme.</translation>
    </message>
    <message id="ID_Engine_Camera_ServerLost">
        <source></source>
        <translation>Le service de caméra de cet ordinateur est arrêté.
Attendez un instant ou redémarrez l'ordinateur.</translation>
    </message>
    <message id="ID_Engine_Camera_Stalled">
        <source></source>
        <translation>La caméra n'envoie pas d'images.
Débranchez-la puis rebranchez-la, ou choisissez-en une autre.</translation>
    </message>
    <message id="ID_Engine_Camera_Starting">
        <source></source>
        <translation>La caméra démarre…</translation>
    </message>
    <message id="ID_Engine_Camera_Unplugged">
        <source></source>
        <translation>La caméra a été débranchée.
Rebranchez-la ou choisissez-en une autre.</translation>
    </message>
    <message id="ID_Engine_Camera_Unreadable">
        <source></source>
        <translation>Les images de la caméra ne peuvent pas être affichées ici.
Choisissez une autre caméra, ou un autre format dans ses réglages.</translation>
    </message>
    <message id="ID_Engine_File_BadEnd">
        <source></source>
        <translation>sous Windows, un nom ne peut pas finir par un point ou une espace</translation>
    </message>
    <message id="ID_Engine_File_BadLetter">
        <source></source>
        <translation>sous Windows, un nom ne peut contenir ni &lt; &gt; : " | ? * ni caractères de contrôle</translation>
    </message>
    <message id="ID_Engine_File_DeadLink">
        <source></source>
        <translation>c’est un lien qui ne mène nulle part</translation>
    </message>
    <message id="ID_Engine_File_DeviceName">
        <source></source>
        <translation>%1 est le nom d’un périphérique sous Windows</translation>
    </message>
    <message id="ID_Engine_File_DiskSilent">
        <source></source>
        <translation>le disque ne répond pas</translation>
    </message>
    <message id="ID_Engine_File_ForeignLink">
        <source></source>
        <translation>c’est un lien qui appartient à un autre utilisateur</translation>
    </message>
    <message id="ID_Engine_File_LockHeld">
        <source></source>
        <translation>un autre programme détient son fichier de verrouillage %1</translation>
    </message>
    <message id="ID_Engine_File_LockNotMade">
        <source></source>
        <translation>son fichier de verrouillage ne peut pas être créé</translation>
    </message>
    <message id="ID_Engine_File_LockNotRegular">
        <source></source>
        <translation>son fichier de verrouillage %1 n’est pas un fichier ordinaire</translation>
    </message>
    <message id="ID_Engine_File_NoFolder">
        <source></source>
        <translation>son dossier ne peut pas être créé</translation>
    </message>
    <message id="ID_Engine_File_NotMade">
        <source></source>
        <translation>son nouveau contenu ne peut pas être produit ; le disque est-il plein ?</translation>
    </message>
    <message id="ID_Engine_File_NotRegular">
        <source></source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message id="ID_Engine_File_TooLarge">
        <source></source>
        <translation>il dépasse %1 Mio</translation>
    </message>
    <message id="ID_Engine_File_TooManyChanges">
        <source></source>
        <translation>trop de modifications attendent le disque</translation>
    </message>
    <message id="ID_Engine_Json_Document">
        <source></source>
        <translation>le document doit être un objet</translation>
    </message>
    <message id="ID_Engine_Json_Empty">
        <source></source>
        <translation>ne doit pas être vide</translation>
    </message>
    <message id="ID_Engine_Json_Flag">
        <source></source>
        <translation>doit être true ou false</translation>
    </message>
    <message id="ID_Engine_Json_Invalid">
        <source></source>
        <translation>JSON non valide : %1</translation>
    </message>
    <message id="ID_Engine_Json_List">
        <source></source>
        <translation>doit être une liste</translation>
    </message>
    <message id="ID_Engine_Json_Missing">
        <source></source>
        <translation>est absent</translation>
    </message>
    <message id="ID_Engine_Json_Number">
        <source></source>
        <translation>doit être un nombre</translation>
    </message>
    <message id="ID_Engine_Json_Object">
        <source></source>
        <translation>doit être un objet</translation>
    </message>
    <message id="ID_Engine_Json_ShortList">
        <source></source>
        <translation>doit être une liste d’au plus %1 éléments</translation>
    </message>
    <message id="ID_Engine_Json_ShortText">
        <source></source>
        <translation>doit être un texte d’au plus %1 caractères</translation>
    </message>
    <message id="ID_Engine_Json_Text">
        <source></source>
        <translation>doit être un texte</translation>
    </message>
    <message id="ID_Engine_Json_Twice">
        <source></source>
        <translation>apparaît deux fois</translation>
    </message>
    <message id="ID_Engine_Json_Unknown">
        <source></source>
        <translation>n’est pas un champ connu ici</translation>
    </message>
    <message id="ID_Engine_Json_WholeNumber">
        <source></source>
        <translation>doit être un nombre entier de %1 à %2</translation>
    </message>
    <message id="ID_Engine_Json_Word">
        <source></source>
        <translation>doit être l’un de ces mots : %1</translation>
    </message>
    <message id="ID_Engine_Json_WordList">
        <source></source>
        <translation>doit être une liste de ces mots : %1</translation>
    </message>
    <message id="ID_Engine_NoCamera">
        <source></source>
        <translation>Aucune caméra</translation>
    </message>
    <message id="ID_Engine_NoMicrophone">
        <source></source>
        <translation>Aucun micro</translation>
    </message>
    <message id="ID_Engine_NoSpeaker">
        <source></source>
        <translation>Aucun haut-parleur trouvé</translation>
    </message>
    <message id="ID_Engine_NoSpeakerSelected">
        <source></source>
        <translation>Aucun haut-parleur choisi</translation>
    </message>
    <message id="ID_Engine_NotConnected">
        <source></source>
        <translation>Non connecté</translation>
    </message>
    <message id="ID_Engine_Scenario_Base">
        <source></source>
        <translation>doit nommer un scénario fourni</translation>
    </message>
    <message id="ID_Engine_Scenario_Levels">
        <source></source>
        <translation>doit être [millisecondes, niveau] : croissant à partir de 0, et un niveau de 0 à 1</translation>
    </message>
    <message id="ID_Engine_Scenario_NoDevice">
        <source></source>
        <translation>ne nomme aucun %1 de ce scénario</translation>
    </message>
    <message id="ID_Engine_Scenario_NoVolume">
        <source></source>
        <translation>une caméra n’a pas de volume</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRead">
        <source></source>
        <translation>ne peut pas être lu : %1</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRegular">
        <source></source>
        <translation>ce n’est pas un fichier ordinaire ; indiquez un fichier de scénario</translation>
    </message>
    <message id="ID_Engine_Scenario_SameId">
        <source></source>
        <translation>doit être unique dans sa liste</translation>
    </message>
    <message id="ID_Engine_Scenario_TooLarge">
        <source></source>
        <translation>plus de 1 Mio ; indiquez un fichier de scénario</translation>
    </message>
    <message id="ID_Engine_Scenario_TooManyDevices">
        <source></source>
        <translation>plus de %1 appareils différents de ce type ; branchez-en un qui était déjà là</translation>
    </message>
    <message id="ID_Engine_Scenario_Unknown">
        <source></source>
        <translation>ni fichier ni scénario fourni de ce nom (il y a %1)</translation>
    </message>
    <message id="ID_Engine_SoundNotBuilt">
        <source></source>
        <translation>Pas de son : système non pris en charge</translation>
    </message>
    <message id="ID_Engine_SoundServerLost">
        <source></source>
        <translation>Le service de son est arrêté</translation>
    </message>
    <message id="ID_Engine_SoundServerSilent">
        <source></source>
        <translation>Le service de son ne répond pas</translation>
    </message>
    <message id="ID_Engine_TelephoneQuality">
        <source></source>
        <translation>%1 (qualité téléphonique)</translation>
    </message>
    <message id="ID_HeadsetPage_2">
        <source></source>
        <translation>2. Augmentez le volume et vérifiez que le son n’est pas coupé.</translation>
    </message>
    <message id="ID_HeadsetPage_3">
        <source></source>
        <translation>3. Enfoncez bien la fiche ou reconnectez le Bluetooth.</translation>
    </message>
    <message id="ID_HeadsetPage_4">
        <source></source>
        <translation>4. Choisissez la même sortie dans les paramètres de son.</translation>
    </message>
    <message id="ID_HeadsetPage_Bubble">
        <source></source>
        <translation>Bulles</translation>
    </message>
    <message id="ID_HeadsetPage_CanHear">
        <source></source>
        <translation>Oui, j’entends</translation>
    </message>
    <message id="ID_HeadsetPage_CanNotHear">
        <source></source>
        <translation>Je n’entends pas</translation>
    </message>
    <message id="ID_HeadsetPage_ChoseWrong">
        <source></source>
        <translation>Le bon son n’a pas été choisi</translation>
    </message>
    <message id="ID_HeadsetPage_ClickHere">
        <source></source>
        <translation>Vous n’entendez pas le son ? Cliquez ici</translation>
    </message>
    <message id="ID_HeadsetPage_Doorbell">
        <source></source>
        <translation>Sonnette</translation>
    </message>
    <message id="ID_HeadsetPage_Piano">
        <source></source>
        <translation>Piano</translation>
    </message>
    <message id="ID_HeadsetPage_Play">
        <source></source>
        <translation>Écouter</translation>
    </message>
    <message id="ID_HeadsetPage_PlayAgain">
        <source></source>
        <translation>Répéter</translation>
    </message>
    <message id="ID_HeadsetPage_Playing">
        <source></source>
        <translation>Lecture</translation>
    </message>
    <message id="ID_HeadsetPage_PleaseSelectTheAnswer">
        <source></source>
        <translation>Quel son entendez-vous ?</translation>
    </message>
    <message id="ID_HeadsetPage_Saxophone">
        <source></source>
        <translation>Saxophone</translation>
    </message>
    <message id="ID_HeadsetPage_Seagull">
        <source></source>
        <translation>Mouette</translation>
    </message>
    <message id="ID_HeadsetPage_Shutter">
        <source></source>
        <translation>Clic photo</translation>
    </message>
    <message id="ID_HeadsetPage_Speaker">
        <source></source>
        <translation>Sortie :</translation>
    </message>
    <message id="ID_HeadsetPage_Thunder">
        <source></source>
        <translation>Tonnerre</translation>
    </message>
    <message id="ID_HeadsetPage_Tip">
        <source></source>
        <translation>Appuyez sur « Écouter », puis choisissez le son que vous entendez.</translation>
    </message>
    <message id="ID_HeadsetPage_Typing">
        <source></source>
        <translation>Clavier</translation>
    </message>
    <message id="ID_HeadsetPage_choseNo">
        <source></source>
        <translation>Vous n’entendez pas le son</translation>
    </message>
    <message id="ID_HeadsetPage_play">
        <source></source>
        <translation>Écouter</translation>
    </message>
    <message id="ID_HeadsetPage_sound0">
        <source></source>
        <translation>Son 1</translation>
    </message>
    <message id="ID_HeadsetPage_sound1">
        <source></source>
        <translation>Son 2</translation>
    </message>
    <message id="ID_HeadsetPage_sound2">
        <source></source>
        <translation>Son 3</translation>
    </message>
    <message id="ID_HeadsetPage_sound3">
        <source></source>
        <translation>Son 4</translation>
    </message>
    <message id="ID_Host_Changes">
        <source></source>
        <translation>Changements</translation>
    </message>
    <message id="ID_Host_Changes_None">
        <source></source>
        <translation>Rien n’a changé depuis.</translation>
    </message>
    <message id="ID_Host_Check_Loop">
        <source></source>
        <translation>Boucle acoustique</translation>
    </message>
    <message id="ID_Host_Config_BadLine">
        <source></source>
        <translation>%1 : chaque ligne doit être KEY=VALUE, comme server=HOST, ou un commentaire après un point-virgule ; corrigez-la à cet endroit</translation>
    </message>
    <message id="ID_Host_Config_BadValue">
        <source></source>
        <translation>%1 : %2=%3 : valeur attendue : %4 ; corrigez-la à cet endroit</translation>
    </message>
    <message id="ID_Host_Config_BadVariable">
        <source></source>
        <translation>%1=%2 : valeur attendue : %3</translation>
    </message>
    <message id="ID_Host_Config_UnknownKey">
        <source></source>
        <translation>%1 : clé inconnue %2 ; les clés sont server, report-url et report-token-file</translation>
    </message>
    <message id="ID_Host_Config_Unreadable">
        <source></source>
        <translation>%1 : illisible comme fichier de configuration ; mettez-y un fichier texte avec des lignes comme server=HOST, ou supprimez-le</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerLost">
        <source></source>
        <translation>Le service de caméra est arrêté</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerSilent">
        <source></source>
        <translation>Le service de caméra ne répond pas</translation>
    </message>
    <message id="ID_Host_Devices_Cameras">
        <source></source>
        <translation>Caméras</translation>
    </message>
    <message id="ID_Host_Devices_Microphones">
        <source></source>
        <translation>Micros</translation>
    </message>
    <message id="ID_Host_Devices_None">
        <source></source>
        <translation>rien trouvé</translation>
    </message>
    <message id="ID_Host_Devices_NotBuilt">
        <source></source>
        <translation>ce programme a été compilé sans les appareils réels (ENVCHECK_DEVICES) : utilisez --platform scripted</translation>
    </message>
    <message id="ID_Host_Devices_Speakers">
        <source></source>
        <translation>Haut-parleurs</translation>
    </message>
    <message id="ID_Host_Display_Gone">
        <source></source>
        <translation>l’affichage a disparu, et la vérification avec lui : le serveur X ou le compositeur Wayland s’est arrêté ; relancez la vérification</translation>
    </message>
    <message id="ID_Host_Display_None">
        <source></source>
        <translation>il n’y a pas d’affichage où ouvrir la vérification : lancez-la depuis une session de bureau ou avec xvfb-run</translation>
    </message>
    <message id="ID_Host_Display_NotOpened">
        <source></source>
        <translation>impossible d’ouvrir l’affichage %1 : lancez la vérification depuis une session de bureau ou avec xvfb-run</translation>
    </message>
    <message id="ID_Host_Exit_AllPassed">
        <source></source>
        <translation>tout est réussi</translation>
    </message>
    <message id="ID_Host_Exit_BadInput">
        <source></source>
        <translation>un fichier indiqué est inutilisable</translation>
    </message>
    <message id="ID_Host_Exit_CannotWrite">
        <source></source>
        <translation>impossible d’écrire un fichier ou un dossier</translation>
    </message>
    <message id="ID_Host_Exit_LeftEarly">
        <source></source>
        <translation>l’utilisateur a quitté avant la fin</translation>
    </message>
    <message id="ID_Host_Exit_PutOut">
        <source></source>
        <translation>la session a été fermée par la classe</translation>
    </message>
    <message id="ID_Host_Exit_SomeFailed">
        <source></source>
        <translation>un test a échoué</translation>
    </message>
    <message id="ID_Host_Exit_TourProblems">
        <source></source>
        <translation>la visite a trouvé un défaut</translation>
    </message>
    <message id="ID_Host_Exit_Unavailable">
        <source></source>
        <translation>il manque un affichage, un port ou un serveur</translation>
    </message>
    <message id="ID_Host_Exit_WrongUsage">
        <source></source>
        <translation>mauvaise utilisation : le message nomme l’option</translation>
    </message>
    <message id="ID_Host_Figure_Answered">
        <source></source>
        <translation>Sondes avec réponse</translation>
    </message>
    <message id="ID_Host_Figure_Bandwidth">
        <source></source>
        <translation>Fréquence maximale captée</translation>
    </message>
    <message id="ID_Host_Figure_Black">
        <source></source>
        <translation>Images noires</translation>
    </message>
    <message id="ID_Host_Figure_Brightness">
        <source></source>
        <translation>Luminosité</translation>
    </message>
    <message id="ID_Host_Figure_Clipped">
        <source></source>
        <translation>Son saturé</translation>
    </message>
    <message id="ID_Host_Figure_DefaultAfter">
        <source></source>
        <translation>Appareil par défaut après</translation>
    </message>
    <message id="ID_Host_Figure_DefaultBefore">
        <source></source>
        <translation>Appareil par défaut avant</translation>
    </message>
    <message id="ID_Host_Figure_Delay">
        <source></source>
        <translation>Aller-retour (médiane)</translation>
    </message>
    <message id="ID_Host_Figure_Delay5">
        <source></source>
        <translation>Aller-retour (5e centile)</translation>
    </message>
    <message id="ID_Host_Figure_Delay95">
        <source></source>
        <translation>Aller-retour (95e centile)</translation>
    </message>
    <message id="ID_Host_Figure_FirstPicture">
        <source></source>
        <translation>Délai de la première image</translation>
    </message>
    <message id="ID_Host_Figure_Frozen">
        <source></source>
        <translation>Images figées</translation>
    </message>
    <message id="ID_Host_Figure_Height">
        <source></source>
        <translation>Hauteur de l’image</translation>
    </message>
    <message id="ID_Host_Figure_HumFrequency">
        <source></source>
        <translation>Fréquence du ronflement secteur</translation>
    </message>
    <message id="ID_Host_Figure_HumShare">
        <source></source>
        <translation>Ronflement secteur dans le bruit</translation>
    </message>
    <message id="ID_Host_Figure_Jitter">
        <source></source>
        <translation>Gigue</translation>
    </message>
    <message id="ID_Host_Figure_Level">
        <source></source>
        <translation>Niveau</translation>
    </message>
    <message id="ID_Host_Figure_LoopDelay">
        <source></source>
        <translation>Délai du haut-parleur au microphone</translation>
    </message>
    <message id="ID_Host_Figure_LoopLevel">
        <source></source>
        <translation>Niveau au microphone</translation>
    </message>
    <message id="ID_Host_Figure_Loss">
        <source></source>
        <translation>Perte de paquets</translation>
    </message>
    <message id="ID_Host_Figure_Modes">
        <source></source>
        <translation>Modes de la caméra</translation>
    </message>
    <message id="ID_Host_Figure_MovedByUser">
        <source></source>
        <translation>Volume modifié par l’utilisateur</translation>
    </message>
    <message id="ID_Host_Figure_MutedAfter">
        <source></source>
        <translation>Son coupé après</translation>
    </message>
    <message id="ID_Host_Figure_MutedBefore">
        <source></source>
        <translation>Son coupé avant</translation>
    </message>
    <message id="ID_Host_Figure_NoiseFloor">
        <source></source>
        <translation>Bruit de fond</translation>
    </message>
    <message id="ID_Host_Figure_OneWayDelay">
        <source></source>
        <translation>Latence aller (moitié de l’aller-retour)</translation>
    </message>
    <message id="ID_Host_Figure_Peak">
        <source></source>
        <translation>Son le plus fort</translation>
    </message>
    <message id="ID_Host_Figure_Pictures">
        <source></source>
        <translation>Images</translation>
    </message>
    <message id="ID_Host_Figure_Program">
        <source></source>
        <translation>Utilisée par</translation>
    </message>
    <message id="ID_Host_Figure_Rate">
        <source></source>
        <translation>Images par seconde</translation>
    </message>
    <message id="ID_Host_Figure_Seconds">
        <source></source>
        <translation>Durée mesurée</translation>
    </message>
    <message id="ID_Host_Figure_Sent">
        <source></source>
        <translation>Sondes envoyées</translation>
    </message>
    <message id="ID_Host_Figure_SoundHeard">
        <source></source>
        <translation>Son capté</translation>
    </message>
    <message id="ID_Host_Figure_SoundPlayed">
        <source></source>
        <translation>Son joué</translation>
    </message>
    <message id="ID_Host_Figure_VolumeAfter">
        <source></source>
        <translation>Volume après</translation>
    </message>
    <message id="ID_Host_Figure_VolumeBefore">
        <source></source>
        <translation>Volume avant</translation>
    </message>
    <message id="ID_Host_Figure_Width">
        <source></source>
        <translation>Largeur de l’image</translation>
    </message>
    <message id="ID_Host_File_IsFolder">
        <source></source>
        <translation>c’est un dossier ; indiquez un fichier qui s’y trouve</translation>
    </message>
    <message id="ID_Host_File_NameOther">
        <source></source>
        <translation>%1 ; indiquez un autre fichier</translation>
    </message>
    <message id="ID_Host_File_NoFolder">
        <source></source>
        <translation>le dossier %1 n’existe pas ; créez-le ou indiquez un autre fichier</translation>
    </message>
    <message id="ID_Host_File_NoObject">
        <source></source>
        <translation>le document n’est pas un objet</translation>
    </message>
    <message id="ID_Host_File_NoReport">
        <source></source>
        <translation>%1 n’est pas un rapport en JSON (%2) ; indiquez-en un qu’une vérification a écrit</translation>
    </message>
    <message id="ID_Host_File_NoRight">
        <source></source>
        <translation>vous n’avez pas le droit d’y écrire ; indiquez un autre fichier</translation>
    </message>
    <message id="ID_Host_File_NotOrdinary">
        <source></source>
        <translation>ce n’est pas un fichier ordinaire ; indiquez-en un autre</translation>
    </message>
    <message id="ID_Host_File_NotRead">
        <source></source>
        <translation>impossible de lire %1 : %2 ; indiquez un rapport qu’une vérification a écrit</translation>
    </message>
    <message id="ID_Host_File_NotWritten">
        <source></source>
        <translation>impossible d’écrire %1 : %2</translation>
    </message>
    <message id="ID_Host_File_TooLarge">
        <source></source>
        <translation>il est trop volumineux</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodPicture">
        <source></source>
        <translation>Réponse « non », mais des images animées arrivaient.</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodSound">
        <source></source>
        <translation>Réponse « non », mais le micro captait du son.</translation>
    </message>
    <message id="ID_Host_Flag_NoToRightSound">
        <source></source>
        <translation>Réponse « non », mais le bon son a été choisi.</translation>
    </message>
    <message id="ID_Host_Flag_YesToBlackPicture">
        <source></source>
        <translation>Réponse « oui » devant une image noire.</translation>
    </message>
    <message id="ID_Host_Flag_YesToFrozenPicture">
        <source></source>
        <translation>Réponse « oui » devant une image figée.</translation>
    </message>
    <message id="ID_Host_Flag_YesToMutedSpeaker">
        <source></source>
        <translation>Réponse « oui » alors que le son du haut-parleur était coupé.</translation>
    </message>
    <message id="ID_Host_Flag_YesToSilence">
        <source></source>
        <translation>Réponse « oui », mais le micro ne captait rien.</translation>
    </message>
    <message id="ID_Host_Flag_YesToWrongSound">
        <source></source>
        <translation>Réponse « oui », mais le bon son n’a pas été choisi.</translation>
    </message>
    <message id="ID_Host_Flag_YesWithoutPictures">
        <source></source>
        <translation>Réponse « oui », mais aucune image n’arrivait.</translation>
    </message>
    <message id="ID_Host_Grade">
        <source></source>
        <translation>Qualité du réseau</translation>
    </message>
    <message id="ID_Host_Grade_Fair">
        <source></source>
        <translation>moyenne</translation>
    </message>
    <message id="ID_Host_Grade_FairUpTo">
        <source></source>
        <translation>moyenne jusqu’à %1</translation>
    </message>
    <message id="ID_Host_Grade_Good">
        <source></source>
        <translation>bonne</translation>
    </message>
    <message id="ID_Host_Grade_GoodUpTo">
        <source></source>
        <translation>bonne jusqu’à %1</translation>
    </message>
    <message id="ID_Host_Grade_Poor">
        <source></source>
        <translation>mauvaise</translation>
    </message>
    <message id="ID_Host_Help_Arguments">
        <source></source>
        <translation>Arguments :</translation>
    </message>
    <message id="ID_Host_Help_Check">
        <source></source>
        <translation>Vérifie le réseau, la caméra, le haut-parleur et le micro avant un cours en ligne.</translation>
    </message>
    <message id="ID_Host_Help_Commands">
        <source></source>
        <translation>Commandes :</translation>
    </message>
    <message id="ID_Host_Help_Devices">
        <source></source>
        <translation>Affiche les caméras, les micros et les haut-parleurs avec leur état. Code de sortie 0 : les listes sont complètes, même si rien n'a été trouvé ; 69 : le service de caméra ou de son est arrêté ou ne répond pas.</translation>
    </message>
    <message id="ID_Host_Help_ExitCodes">
        <source></source>
        <translation>Codes de sortie :</translation>
    </message>
    <message id="ID_Host_Help_File">
        <source></source>
        <translation>Un rapport écrit par une vérification ; - est l’entrée standard. Sans lui : le rapport de la dernière vérification.</translation>
    </message>
    <message id="ID_Host_Help_History">
        <source></source>
        <translation>Liste les vérifications précédentes avec leurs résultats et rapports.</translation>
    </message>
    <message id="ID_Host_Help_Network">
        <source></source>
        <translation>Mesure la latence et la perte de paquets et affiche les valeurs au fur et à mesure.</translation>
    </message>
    <message id="ID_Host_Help_NoCommand">
        <source></source>
        <translation>Sans commande, la vérification s’ouvre. Chaque commande a sa propre aide (--help).</translation>
    </message>
    <message id="ID_Host_Help_Options">
        <source></source>
        <translation>Options :</translation>
    </message>
    <message id="ID_Host_Help_Report">
        <source></source>
        <translation>Affiche les rapports de vérifications antérieures en texte, HTML ou JSON, ou plusieurs en un tableau.</translation>
    </message>
    <message id="ID_Host_Help_Serve">
        <source></source>
        <translation>Répond aux mesures d’autres ordinateurs, comme petit serveur STUN, jusqu’à son arrêt.</translation>
    </message>
    <message id="ID_Host_Help_Usage">
        <source></source>
        <translation>Utilisation : %1</translation>
    </message>
    <message id="ID_Host_Help_UsageOptions">
        <source></source>
        <translation>[options]</translation>
    </message>
    <message id="ID_Host_History_NoReport">
        <source></source>
        <translation>il n’y a encore aucun rapport de vérification ; lancez la vérification ou nommez le fichier (FILE) d’un rapport</translation>
    </message>
    <message id="ID_Host_History_None">
        <source></source>
        <translation>Il n’y a pas de vérification précédente.</translation>
    </message>
    <message id="ID_Host_Language_Unknown">
        <source></source>
        <translation>--language %1 : il n’y a pas de textes dans cette langue ; indiquez l’une de celles-ci : %2</translation>
    </message>
    <message id="ID_Host_LastGoodRun">
        <source></source>
        <translation>Dernière vérification réussie</translation>
    </message>
    <message id="ID_Host_LastGoodRun_None">
        <source></source>
        <translation>Aucune vérification antérieure n’a entièrement réussi.</translation>
    </message>
    <message id="ID_Host_MeasuringFailed">
        <source></source>
        <translation>échec de la mesure : %1</translation>
    </message>
    <message id="ID_Host_Network_Ends">
        <source></source>
        <translation>serveur %1, cet ordinateur %2</translation>
    </message>
    <message id="ID_Host_Network_Figures">
        <source></source>
        <translation>latence %1 ms, gigue %2 ms, perte %3 %, sondes envoyées %4, avec réponse %5 : %6</translation>
    </message>
    <message id="ID_Host_Network_NameServer">
        <source></source>
        <translation>non mesuré : pas de serveur ; indiquez-en un avec --server, avec %1 ou dans %2</translation>
    </message>
    <message id="ID_Host_Network_NoAnswer">
        <source></source>
        <translation>pas de réponse, perte %1 %, sondes envoyées %2, avec réponse %3</translation>
    </message>
    <message id="ID_Host_Network_NoRoute">
        <source></source>
        <translation>aucun chemin vers le serveur, perte %1 %, sondes envoyées %2, avec réponse %3</translation>
    </message>
    <message id="ID_Host_Network_NoSuchServer">
        <source></source>
        <translation>serveur introuvable, perte %1 %, sondes envoyées %2, avec réponse %3</translation>
    </message>
    <message id="ID_Host_Network_Refused">
        <source></source>
        <translation>le serveur refuse, perte %1 %, sondes envoyées %2, avec réponse %3</translation>
    </message>
    <message id="ID_Host_No">
        <source></source>
        <translation>Non</translation>
    </message>
    <message id="ID_Host_NoAnswer">
        <source></source>
        <translation>Sans réponse</translation>
    </message>
    <message id="ID_Host_NotMeasured">
        <source></source>
        <translation>non mesuré : %1</translation>
    </message>
    <message id="ID_Host_Option_Account">
        <source></source>
        <translation>Compte à afficher ; par défaut, l’utilisateur du système.</translation>
    </message>
    <message id="ID_Host_Option_Cdn">
        <source></source>
        <translation>CDN à afficher.</translation>
    </message>
    <message id="ID_Host_Option_Count">
        <source></source>
        <translation>S’arrête après N valeurs ; sans cette option, continue jusqu’à l’arrêt.</translation>
    </message>
    <message id="ID_Host_Option_Diagnose">
        <source></source>
        <translation>Mesure comme --unattended et réunit le rapport, les appareils, les versions et le journal dans FILE.zip pour ceux qui cherchent la cause. Sans --redact, noms et adresses sont omis.</translation>
    </message>
    <message id="ID_Host_Option_FilesFrom">
        <source></source>
        <translation>Prend aussi les noms de rapports dans FILE, un par ligne ; - est l’entrée standard.</translation>
    </message>
    <message id="ID_Host_Option_Format">
        <source></source>
        <translation>text (par défaut), html ou json ; pour de nombreux rapports room (un tableau), map (une page avec une case par rapport), csv ou jsonl.</translation>
    </message>
    <message id="ID_Host_Option_Help">
        <source></source>
        <translation>Affiche cette aide.</translation>
    </message>
    <message id="ID_Host_Option_Json">
        <source></source>
        <translation>Affiche du JSON au lieu d’un tableau.</translation>
    </message>
    <message id="ID_Host_Option_Language">
        <source></source>
        <translation>Langue des textes, comme en ou zh_CN ; par défaut, celle du système.</translation>
    </message>
    <message id="ID_Host_Option_Loop">
        <source></source>
        <translation>Avec --unattended : joue aussi pendant une seconde un son faible qui monte sur le haut-parleur choisi, et le cherche avec le microphone choisi. Cela s'entend.</translation>
    </message>
    <message id="ID_Host_Option_Nickname">
        <source></source>
        <translation>Pseudo à afficher ; par défaut, l’utilisateur du système.</translation>
    </message>
    <message id="ID_Host_Option_Platform">
        <source></source>
        <translation>Appareils à vérifier : devices (ceux de cet ordinateur, par défaut) ou scripted (simulés).</translation>
    </message>
    <message id="ID_Host_Option_Port">
        <source></source>
        <translation>Port UDP sur lequel répondre ; 3478 par défaut, 0 prend un port libre.</translation>
    </message>
    <message id="ID_Host_Option_Quiet">
        <source></source>
        <translation>Ne pas ouvrir de fenêtre avec le résultat après une vérification en échec.</translation>
    </message>
    <message id="ID_Host_Option_Redact">
        <source></source>
        <translation>Ce qui est omis : none (rien, par défaut), personal (adresses, noms et comptes) ou hash (des codes courts à leur place).</translation>
    </message>
    <message id="ID_Host_Option_Report">
        <source></source>
        <translation>Écrit le rapport dans FILE au lieu de l’endroit habituel ; l’extension (.json, .html ou .txt) donne le format, et - est la sortie standard, en JSON.</translation>
    </message>
    <message id="ID_Host_Option_ReportTokenFile">
        <source></source>
        <translation>Fichier contenant le jeton que demande le serveur de rapports. Vous seul, ou un groupe, pouvez le lire.</translation>
    </message>
    <message id="ID_Host_Option_ReportUrl">
        <source></source>
        <translation>Adresse à laquelle envoyer le rapport et ses codes. Sans --redact, il ne contient ni noms ni adresses.</translation>
    </message>
    <message id="ID_Host_Option_Results">
        <source></source>
        <translation>Écrit aussi les résultats bruts dans FILE, en JSON, après chaque changement ; - est la sortie standard, à la fin.</translation>
    </message>
    <message id="ID_Host_Option_Scenario">
        <source></source>
        <translation>Ce que font les appareils simulés : un fichier ou le nom d’un scénario fourni, comme all-well. Implique --platform scripted.</translation>
    </message>
    <message id="ID_Host_Option_Server">
        <source></source>
        <translation>Serveur STUN vers lequel mesurer la latence et la perte, aussi sous la forme stun:HOST:PORT. Sans port, les enregistrements DNS du domaine (_stun._udp) sont consultés ; à défaut, le port est 3478. ENVCHECK_SERVER ou un fichier de configuration peut aussi l’indiquer. Sans serveur, le réseau n’est pas mesuré : cet ordinateur se répond à lui-même.</translation>
    </message>
    <message id="ID_Host_Option_Tour">
        <source></source>
        <translation>Parcourt toutes les étapes automatiquement et enregistre une image de chacune dans FOLDER.</translation>
    </message>
    <message id="ID_Host_Option_Unattended">
        <source></source>
        <translation>Mesure sans fenêtre et sans personne ; --json FICHIER (- pour la sortie standard) écrit le rapport. Codes de sortie : 0 fonctionne, 1 à corriger, 69 un service ou un serveur manque.</translation>
    </message>
    <message id="ID_Host_Option_Verbose">
        <source></source>
        <translation>Écrit aussi le journal dans le terminal.</translation>
    </message>
    <message id="ID_Host_Option_Version">
        <source></source>
        <translation>Affiche la version.</translation>
    </message>
    <message id="ID_Host_Outcome_BrokenOff">
        <source></source>
        <translation>Sans surveillance : arrêté avant que tout soit mesuré</translation>
    </message>
    <message id="ID_Host_Outcome_Failed">
        <source></source>
        <translation>Terminé avec des problèmes</translation>
    </message>
    <message id="ID_Host_Outcome_Faulty">
        <source></source>
        <translation>Sans surveillance : quelque chose est à corriger</translation>
    </message>
    <message id="ID_Host_Outcome_LeftEarly">
        <source></source>
        <translation>Quitté avant la fin</translation>
    </message>
    <message id="ID_Host_Outcome_Passed">
        <source></source>
        <translation>Tout est réussi</translation>
    </message>
    <message id="ID_Host_Outcome_PutOut">
        <source></source>
        <translation>La session a été fermée par la classe</translation>
    </message>
    <message id="ID_Host_Outcome_Unavailable">
        <source></source>
        <translation>Sans surveillance : un service manque, tout n'a donc pas pu être mesuré</translation>
    </message>
    <message id="ID_Host_Outcome_Works">
        <source></source>
        <translation>Sans surveillance : tout ce qui a été mesuré fonctionne</translation>
    </message>
    <message id="ID_Host_OutputNotWritten">
        <source></source>
        <translation>impossible d’écrire la sortie ; vérifiez si le disque est plein</translation>
    </message>
    <message id="ID_Host_Reason_Absent">
        <source></source>
        <translation>aucun appareil</translation>
    </message>
    <message id="ID_Host_Reason_Busy">
        <source></source>
        <translation>un autre programme utilise l’appareil</translation>
    </message>
    <message id="ID_Host_Reason_Denied">
        <source></source>
        <translation>le système refuse l’accès</translation>
    </message>
    <message id="ID_Host_Reason_Failed">
        <source></source>
        <translation>l’appareil est en panne</translation>
    </message>
    <message id="ID_Host_Reason_Hung">
        <source></source>
        <translation>l’appareil ne répond pas</translation>
    </message>
    <message id="ID_Host_Reason_Muted">
        <source></source>
        <translation>le son de l'appareil est coupé</translation>
    </message>
    <message id="ID_Host_Reason_NoAnswer">
        <source></source>
        <translation>le serveur ne répond pas</translation>
    </message>
    <message id="ID_Host_Reason_NoRoute">
        <source></source>
        <translation>il n’y a aucun chemin vers le serveur</translation>
    </message>
    <message id="ID_Host_Reason_NotBuilt">
        <source></source>
        <translation>non pris en charge sur ce système</translation>
    </message>
    <message id="ID_Host_Reason_NotOffered">
        <source></source>
        <translation>ce moteur ne sait pas le faire</translation>
    </message>
    <message id="ID_Host_Reason_NotRecorded">
        <source></source>
        <translation>le moteur ne l’enregistre pas</translation>
    </message>
    <message id="ID_Host_Reason_Off">
        <source></source>
        <translation>l’appareil est désactivé</translation>
    </message>
    <message id="ID_Host_Reason_Refused">
        <source></source>
        <translation>le serveur a refusé</translation>
    </message>
    <message id="ID_Host_Reason_Scripted">
        <source></source>
        <translation>un appareil simulé n’a pas cette valeur</translation>
    </message>
    <message id="ID_Host_Reason_ServerLost">
        <source></source>
        <translation>le service de son est arrêté</translation>
    </message>
    <message id="ID_Host_Reason_ServerSilent">
        <source></source>
        <translation>le service de son ne répond pas</translation>
    </message>
    <message id="ID_Host_Reason_Silent">
        <source></source>
        <translation>rien n’est venu de l’appareil</translation>
    </message>
    <message id="ID_Host_Reason_StepNotOpened">
        <source></source>
        <translation>cette étape n’a pas été ouverte</translation>
    </message>
    <message id="ID_Host_Reason_Unreadable">
        <source></source>
        <translation>la caméra n'envoie aucun format affichable</translation>
    </message>
    <message id="ID_Host_Reason_VolumeZero">
        <source></source>
        <translation>le volume est à 0</translation>
    </message>
    <message id="ID_Host_Redacted_Hash">
        <source></source>
        <translation>Adresses, noms et comptes sont remplacés par des codes courts.</translation>
    </message>
    <message id="ID_Host_Redacted_Personal">
        <source></source>
        <translation>Adresses, noms et comptes sont omis.</translation>
    </message>
    <message id="ID_Host_Remedy_Clipping">
        <source></source>
        <translation>Le micro est trop fort et sature : baissez son volume.</translation>
    </message>
    <message id="ID_Host_Remedy_Hum">
        <source></source>
        <translation>Le micro ronfle : essayez une autre prise ou un autre câble et éloignez-le des alimentations.</translation>
    </message>
    <message id="ID_Host_Remedy_LoopNotHeard">
        <source></source>
        <translation>Le microphone n'a pas entendu le haut-parleur : augmentez le volume des deux et vérifiez qu'ils appartiennent au même casque ou se trouvent dans la même pièce.</translation>
    </message>
    <message id="ID_Host_Remedy_ServerSilent">
        <source></source>
        <translation>Le service d'image et de son du système n'a pas répondu : fermez la session et rouvrez-la, ou redémarrez l'ordinateur.</translation>
    </message>
    <message id="ID_Host_ReportIsIn">
        <source></source>
        <translation>Le rapport se trouve dans %1</translation>
    </message>
    <message id="ID_Host_Report_Answer">
        <source></source>
        <translation>Réponse</translation>
    </message>
    <message id="ID_Host_Report_BadTime">
        <source></source>
        <translation>doit être une date comme 2026-03-01T08:30:00Z</translation>
    </message>
    <message id="ID_Host_Report_Causes">
        <source></source>
        <translation>Causes</translation>
    </message>
    <message id="ID_Host_Report_Computer">
        <source></source>
        <translation>Ordinateur</translation>
    </message>
    <message id="ID_Host_Report_Contradiction">
        <source></source>
        <translation>Contradiction</translation>
    </message>
    <message id="ID_Host_Report_Count">
        <source></source>
        <translation>Rapports</translation>
    </message>
    <message id="ID_Host_Report_Device">
        <source></source>
        <translation>Appareil</translation>
    </message>
    <message id="ID_Host_Report_Id">
        <source></source>
        <translation>Numéro du rapport</translation>
    </message>
    <message id="ID_Host_Report_Later">
        <source></source>
        <translation>Mesuré plus tard</translation>
    </message>
    <message id="ID_Host_Report_Measurements">
        <source></source>
        <translation>Mesures</translation>
    </message>
    <message id="ID_Host_Report_Notice">
        <source></source>
        <translation>Remarque</translation>
    </message>
    <message id="ID_Host_Report_OtherFormat">
        <source></source>
        <translation>ce n’est pas un rapport de la vérification</translation>
    </message>
    <message id="ID_Host_Report_OtherVersion">
        <source></source>
        <translation>c’est %1, et ce programme lit la version %2</translation>
    </message>
    <message id="ID_Host_Report_Outcome">
        <source></source>
        <translation>Bilan</translation>
    </message>
    <message id="ID_Host_Report_Program">
        <source></source>
        <translation>Programme</translation>
    </message>
    <message id="ID_Host_Report_Result">
        <source></source>
        <translation>Résultat</translation>
    </message>
    <message id="ID_Host_Report_RightSound">
        <source></source>
        <translation>Bon son choisi</translation>
    </message>
    <message id="ID_Host_Report_Scripted">
        <source></source>
        <translation>Les appareils étaient simulés, pas ceux de cet ordinateur.</translation>
    </message>
    <message id="ID_Host_Report_Summary">
        <source></source>
        <translation>Résumé</translation>
    </message>
    <message id="ID_Host_Report_System">
        <source></source>
        <translation>Ordinateur et compte</translation>
    </message>
    <message id="ID_Host_Report_Time">
        <source></source>
        <translation>Date et heure</translation>
    </message>
    <message id="ID_Host_Report_Title">
        <source></source>
        <translation>Rapport de la vérification du système</translation>
    </message>
    <message id="ID_Host_Serve_Answering">
        <source></source>
        <translation>Réponses sur le port UDP %1. D’autres ordinateurs mesurent le trajet jusqu’ici avec --server stun:HOST:%1</translation>
    </message>
    <message id="ID_Host_Serve_NoPort">
        <source></source>
        <translation>impossible de répondre sur le port UDP %1 : %2. Choisissez-en un autre avec --port</translation>
    </message>
    <message id="ID_Host_Serve_NotBuilt">
        <source></source>
        <translation>serve demande un programme compilé avec les appareils réels (ENVCHECK_DEVICES)</translation>
    </message>
    <message id="ID_Host_State_Absent">
        <source></source>
        <translation>non connecté</translation>
    </message>
    <message id="ID_Host_State_Busy">
        <source></source>
        <translation>déjà utilisé</translation>
    </message>
    <message id="ID_Host_State_Denied">
        <source></source>
        <translation>accès refusé</translation>
    </message>
    <message id="ID_Host_State_Failed">
        <source></source>
        <translation>en panne</translation>
    </message>
    <message id="ID_Host_State_Hung">
        <source></source>
        <translation>ne répond pas</translation>
    </message>
    <message id="ID_Host_State_Off">
        <source></source>
        <translation>désactivé</translation>
    </message>
    <message id="ID_Host_State_Ready">
        <source></source>
        <translation>prêt</translation>
    </message>
    <message id="ID_Host_State_Silent">
        <source></source>
        <translation>aucun signal</translation>
    </message>
    <message id="ID_Host_State_Working">
        <source></source>
        <translation>fonctionne</translation>
    </message>
    <message id="ID_Host_Takes_Ending">
        <source></source>
        <translation>un nom qui finit par %1, ou - pour la sortie standard</translation>
    </message>
    <message id="ID_Host_Takes_FileEnding">
        <source></source>
        <translation>un nom de fichier qui finit par %1</translation>
    </message>
    <message id="ID_Host_Takes_Number">
        <source></source>
        <translation>un nombre de %1 à %2</translation>
    </message>
    <message id="ID_Host_Takes_OneOf">
        <source></source>
        <translation>l’une de ces valeurs : %1</translation>
    </message>
    <message id="ID_Host_Takes_Server">
        <source></source>
        <translation>HOST ou HOST:PORT, avec ou sans stun: devant, comme stun:stun.example.org:3478</translation>
    </message>
    <message id="ID_Host_Takes_WebAddress">
        <source></source>
        <translation>une adresse http ou https</translation>
    </message>
    <message id="ID_Host_Token_NoToken">
        <source></source>
        <translation>%1 : ce n’est pas un jeton ; il faut une ligne de lettres, de chiffres et de - . _ ~ + /, avec = à la fin</translation>
    </message>
    <message id="ID_Host_Token_NotEncrypted">
        <source></source>
        <translation>%1 : un jeton n’est envoyé que par https ; prenez une adresse https, ou aucun jeton</translation>
    </message>
    <message id="ID_Host_Token_NotRead">
        <source></source>
        <translation>impossible de lire %1 : %2 ; indiquez un fichier contenant le jeton du serveur de rapports</translation>
    </message>
    <message id="ID_Host_Token_Open">
        <source></source>
        <translation>%1 contient un jeton, et tout utilisateur peut le lire ou l’écrire ; changez cela par : chmod o= %1</translation>
    </message>
    <message id="ID_Host_Tour_Done">
        <source></source>
        <translation>%1 images se trouvent dans %2 ; index.html les montre toutes.</translation>
    </message>
    <message id="ID_Host_Tour_NoFolder">
        <source></source>
        <translation>--tour %1 : impossible de créer ce dossier ; indiquez-en un autre</translation>
    </message>
    <message id="ID_Host_Tour_NotWritten">
        <source></source>
        <translation>%1 : %2 ; indiquez un autre dossier</translation>
    </message>
    <message id="ID_Host_Upload_Kept">
        <source></source>
        <translation>Le rapport n’est pas arrivé à %1 : %2. Il est conservé, et la prochaine exécution l’enverra de nouveau.</translation>
    </message>
    <message id="ID_Host_Upload_NoAnswer">
        <source></source>
        <translation>pas de réponse à temps</translation>
    </message>
    <message id="ID_Host_Upload_Refused">
        <source></source>
        <translation>%1 n’accepte pas le rapport : %2. Il ne sera pas envoyé de nouveau.</translation>
    </message>
    <message id="ID_Host_Upload_Sending">
        <source></source>
        <translation>Envoi du rapport à %1 …</translation>
    </message>
    <message id="ID_Host_Upload_WrongToken">
        <source></source>
        <translation>le jeton manque ou est faux (HTTP %1)</translation>
    </message>
    <message id="ID_Host_Usage_EmptyName">
        <source></source>
        <translation>--%1 demande un nom qui n’est pas vide</translation>
    </message>
    <message id="ID_Host_Usage_ExtraArgument">
        <source></source>
        <translation>l’argument « %1 » est en trop : voir --help</translation>
    </message>
    <message id="ID_Host_Usage_LeaveOneOut">
        <source></source>
        <translation>%1 ne va pas avec %2 : supprimez l’une des deux</translation>
    </message>
    <message id="ID_Host_Usage_Needs">
        <source></source>
        <translation>--%1 a besoin de --%2 : ajoutez-le, ou omettez --%1</translation>
    </message>
    <message id="ID_Host_Usage_OtherCommand">
        <source></source>
        <translation>--%1 ne va pas avec %2 : voir --help</translation>
    </message>
    <message id="ID_Host_Usage_SamePlace">
        <source></source>
        <translation>--%1 et --%2 écriraient au même endroit (%3) : nommez-en deux différents</translation>
    </message>
    <message id="ID_Host_Usage_SeeHelp">
        <source></source>
        <translation>%1 Voir --help.</translation>
    </message>
    <message id="ID_Host_Usage_Takes">
        <source></source>
        <translation>--%1 %2 : valeur attendue : %3</translation>
    </message>
    <message id="ID_Host_Usage_TheCheck">
        <source></source>
        <translation>la vérification</translation>
    </message>
    <message id="ID_Host_Usage_UnknownCommand">
        <source></source>
        <translation>commande inconnue « %1 » : voir --help</translation>
    </message>
    <message id="ID_Host_Verdict_Faulty">
        <source></source>
        <translation>À corriger</translation>
    </message>
    <message id="ID_Host_Verdict_Heard">
        <source></source>
        <translation>Entendu</translation>
    </message>
    <message id="ID_Host_Verdict_NotHeard">
        <source></source>
        <translation>Non entendu</translation>
    </message>
    <message id="ID_Host_Verdict_NotTried">
        <source></source>
        <translation>Non essayé</translation>
    </message>
    <message id="ID_Host_Verdict_Unmeasured">
        <source></source>
        <translation>Non mesuré</translation>
    </message>
    <message id="ID_Host_Verdict_Works">
        <source></source>
        <translation>Fonctionne</translation>
    </message>
    <message id="ID_Host_Yes">
        <source></source>
        <translation>Oui</translation>
    </message>
    <message id="ID_Kestrel_SystemTesting">
        <source></source>
        <translation>Vérification du système</translation>
    </message>
    <message id="ID_MessageBox_Critical">
        <source></source>
        <translation>Erreur</translation>
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
        <translation>Avertissement</translation>
    </message>
    <message id="ID_Microphone">
        <source></source>
        <translation>Micro :</translation>
    </message>
    <message id="ID_MicrophonePage_2">
        <source></source>
        <translation>2. Réactivez le micro : cherchez un bouton ou une touche.</translation>
    </message>
    <message id="ID_MicrophonePage_3">
        <source></source>
        <translation>3. Augmentez le volume et parlez près du micro.</translation>
    </message>
    <message id="ID_MicrophonePage_4">
        <source></source>
        <translation>4. Autorisez le micro dans les paramètres de confidentialité.</translation>
    </message>
    <message id="ID_MicrophonePage_Again">
        <source></source>
        <translation>Répéter</translation>
    </message>
    <message id="ID_MicrophonePage_CanHearOrSee">
        <source></source>
        <translation>J’entends et je vois</translation>
    </message>
    <message id="ID_MicrophonePage_CanNotHearOrSee">
        <source></source>
        <translation>Non, pas les deux</translation>
    </message>
    <message id="ID_MicrophonePage_ChoseNo">
        <source></source>
        <translation>Voix inaudible ou barre immobile</translation>
    </message>
    <message id="ID_MicrophonePage_ClickHere">
        <source></source>
        <translation>Voix ou barre absente ? Cliquez ici</translation>
    </message>
    <message id="ID_MicrophonePage_DisabledWillMakeMicrophoneUnusable">
        <source></source>
        <translation>Le micro est désactivé. Choisissez-en un ou activez-le.</translation>
    </message>
    <message id="ID_MicrophonePage_MayNoisy">
        <source></source>
        <translation>Au-delà de 100, du bruit est possible.</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneDisabled">
        <source></source>
        <translation>Le micro est désactivé</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneTest">
        <source></source>
        <translation>Appuyez sur « Parler » et comptez à voix haute de 1 à 10. Écoutez votre voix et regardez si la barre verte bouge.</translation>
    </message>
    <message id="ID_MicrophonePage_NoMicrophoneWasDetected">
        <source></source>
        <translation>Aucun micro trouvé</translation>
    </message>
    <message id="ID_MicrophonePage_NoVoiceWasRecorded">
        <source></source>
        <translation>Le micro ne capte aucun son</translation>
    </message>
    <message id="ID_MicrophonePage_OfS">
        <source></source>
        <translation>%1 s</translation>
    </message>
    <message id="ID_MicrophonePage_Recording">
        <source></source>
        <translation>Parlez…</translation>
    </message>
    <message id="ID_Microphone_Check">
        <source></source>
        <translation>Micro</translation>
    </message>
    <message id="ID_NetworkPage_1">
        <source></source>
        <translation>1. Rapprochez-vous de la box Wi-Fi ou utilisez un câble réseau.</translation>
    </message>
    <message id="ID_NetworkPage_2">
        <source></source>
        <translation>2. Arrêtez téléchargements et vidéos, aussi sur les autres appareils.</translation>
    </message>
    <message id="ID_NetworkPage_3">
        <source></source>
        <translation>3. Désactivez VPN et proxy, ou redémarrez la box.</translation>
    </message>
    <message id="ID_NetworkPage_Account">
        <source></source>
        <translation>Compte :</translation>
    </message>
    <message id="ID_NetworkPage_AvailableCacheSpace">
        <source></source>
        <translation>Cache libre :</translation>
    </message>
    <message id="ID_NetworkPage_CPU">
        <source></source>
        <translation>Processeur :</translation>
    </message>
    <message id="ID_NetworkPage_ClickHere">
        <source></source>
        <translation>Réseau lent ou instable ? Cliquez ici</translation>
    </message>
    <message id="ID_NetworkPage_Client">
        <source></source>
        <translation>Client :</translation>
    </message>
    <message id="ID_NetworkPage_LostRate">
        <source></source>
        <translation>Taux de perte :</translation>
    </message>
    <message id="ID_NetworkPage_NetworkDelay">
        <source></source>
        <translation>Latence réseau :</translation>
    </message>
    <message id="ID_NetworkPage_NetworkSlowOrUnstable">
        <source></source>
        <translation>Le réseau est lent ou instable</translation>
    </message>
    <message id="ID_NetworkPage_OS">
        <source></source>
        <translation>Système :</translation>
    </message>
    <message id="ID_NewLogin_Server">
        <source></source>
        <translation>Serveur :</translation>
    </message>
    <message id="ID_Next">
        <source></source>
        <translation>Suivant</translation>
    </message>
    <message id="ID_Nickname_NetworkPage">
        <source></source>
        <translation>Pseudo :</translation>
    </message>
    <message id="ID_OK">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="ID_Record">
        <source></source>
        <translation>Parler</translation>
    </message>
    <message id="ID_Skip">
        <source></source>
        <translation>Passer</translation>
    </message>
    <message id="ID_Volume">
        <source></source>
        <translation>Niveau :</translation>
    </message>
    <message id="ID_WelcomePage_StartTest">
        <source></source>
        <translation>Commencer</translation>
    </message>
    <message id="ID_WelcomePage_Welcome">
        <source></source>
        <translation>Bienvenue dans la classe en ligne</translation>
    </message>
    <message id="ID_hardwaremgrinterface_NoSpeakerFound">
        <source></source>
        <translation>Aucun haut-parleur trouvé</translation>
    </message>
    <message id="ID_lumcamera_NoWebcamFound">
        <source></source>
        <translation>Aucune caméra trouvée</translation>
    </message>
    <message id="ID_Host_Reason_NoServer">
        <source></source>
        <translation>aucun serveur</translation>
    </message>
    <message id="ID_Host_Reason_NoSuchHost">
        <source></source>
        <translation>le nom du serveur est inconnu</translation>
    </message>
    <message id="ID_Host_Remedy">
        <source></source>
        <translation>Que faire</translation>
    </message>
    <message id="ID_Host_Remedy_NoServer">
        <source></source>
        <translation>Seul cet ordinateur a été mesuré, car aucun serveur n'est défini : demandez à votre école le nom du serveur et indiquez-le avec --server ou dans le fichier de configuration.</translation>
    </message>
    <message id="ID_Host_Remedy_NoAnswer">
        <source></source>
        <translation>Le serveur n'a pas répondu : vérifiez que vous êtes en ligne et qu'aucun pare-feu ne bloque UDP.</translation>
    </message>
    <message id="ID_Host_Remedy_NoSuchHost">
        <source></source>
        <translation>Le nom du serveur est inconnu : vérifiez son orthographe et que vous êtes en ligne.</translation>
    </message>
    <message id="ID_Host_Remedy_Slow">
        <source></source>
        <translation>La connexion est lente : utilisez un câble ou rapprochez-vous de la box Wi-Fi, et arrêtez téléchargements et autres appels.</translation>
    </message>
    <message id="ID_Host_Remedy_Lossy">
        <source></source>
        <translation>Trop de données se perdent en route : utilisez un câble ou rapprochez-vous de la box Wi-Fi.</translation>
    </message>
    <message id="ID_Host_Remedy_LeftTooSoon">
        <source></source>
        <translation>L'étape a été quittée avant toute mesure : attendez-y que les valeurs s'affichent.</translation>
    </message>
    <message id="ID_Host_Remedy_Absent">
        <source></source>
        <translation>Aucun appareil n'a été trouvé : branchez-en un ou allumez-le, puis recommencez.</translation>
    </message>
    <message id="ID_Host_Remedy_Off">
        <source></source>
        <translation>L'appareil est désactivé dans la liste : choisissez-en un.</translation>
    </message>
    <message id="ID_Host_Remedy_Starting">
        <source></source>
        <translation>L'appareil démarrait encore : attendez un peu plus avant de répondre.</translation>
    </message>
    <message id="ID_Host_Remedy_Busy">
        <source></source>
        <translation>Un autre programme utilise l'appareil : fermez ce programme et recommencez.</translation>
    </message>
    <message id="ID_Host_Remedy_Denied">
        <source></source>
        <translation>Le système refuse l'accès à l'appareil : autorisez-le dans les paramètres de confidentialité.</translation>
    </message>
    <message id="ID_Host_Remedy_Hung">
        <source></source>
        <translation>L'appareil n'a pas répondu : débranchez-le et rebranchez-le, ou redémarrez l'ordinateur.</translation>
    </message>
    <message id="ID_Host_Remedy_Stalled">
        <source></source>
        <translation>La caméra n'a envoyé aucune image : débranchez-la et rebranchez-la, ou choisissez-en une autre.</translation>
    </message>
    <message id="ID_Host_Remedy_Black">
        <source></source>
        <translation>L'image était noire : ouvrez le cache de l'objectif et allumez la lumière.</translation>
    </message>
    <message id="ID_Host_Remedy_Frozen">
        <source></source>
        <translation>L'image était figée : débranchez la caméra et rebranchez-la.</translation>
    </message>
    <message id="ID_Host_Remedy_Unplugged">
        <source></source>
        <translation>L'appareil a été débranché pendant le test : rebranchez-le et vérifiez son câble.</translation>
    </message>
    <message id="ID_Host_Remedy_NotBuilt">
        <source></source>
        <translation>Ce programme ne peut pas utiliser ce type d'appareil sur ce système : essayez le vôtre dans un autre programme.</translation>
    </message>
    <message id="ID_Host_Remedy_ServerLost">
        <source></source>
        <translation>Le service d'image et de son du système s'est arrêté : fermez la session et rouvrez-la, ou redémarrez l'ordinateur.</translation>
    </message>
    <message id="ID_Host_Remedy_Failed">
        <source></source>
        <translation>L'appareil est tombé en panne : rebranchez-le ou essayez-en un autre.</translation>
    </message>
    <message id="ID_Host_Remedy_Unreadable">
        <source></source>
        <translation>La caméra n'envoie aucun format affichable ici : choisissez une autre caméra, ou un autre format dans ses réglages.</translation>
    </message>
    <message id="ID_Host_Remedy_Silent">
        <source></source>
        <translation>Le micro n'a rien enregistré : parlez plus près, vérifiez son interrupteur ou choisissez-en un autre dans la liste.</translation>
    </message>
    <message id="ID_Host_Remedy_Muted">
        <source></source>
        <translation>Le son de l'appareil est coupé : rétablissez-le.</translation>
    </message>
    <message id="ID_Host_Remedy_VolumeZero">
        <source></source>
        <translation>Le volume est à 0 : augmentez-le.</translation>
    </message>
    <message id="ID_Host_Remedy_WrongSound">
        <source></source>
        <translation>Vous avez choisi un autre son que celui qui a été joué : augmentez le volume et réécoutez.</translation>
    </message>
    <message id="ID_Host_Remedy_NotSeen">
        <source></source>
        <translation>Vous ne vous êtes pas vu alors que la caméra envoyait des images : vérifiez quelle caméra est choisie.</translation>
    </message>
    <message id="ID_Host_Remedy_NotHeard">
        <source></source>
        <translation>Vous n'avez rien entendu alors qu'un son a été joué : augmentez le volume et vérifiez quel haut-parleur est choisi.</translation>
    </message>
    <message id="ID_Host_Remedy_SelfNotHeard">
        <source></source>
        <translation>Vous ne vous êtes pas entendu alors que le micro a enregistré du son : augmentez le volume et vérifiez quel haut-parleur est choisi.</translation>
    </message>
    <message id="ID_Host_Window_Title">
        <source></source>
        <translation>Résultat du test</translation>
    </message>
    <message id="ID_Host_Window_Copy">
        <source></source>
        <translation>Copier</translation>
    </message>
    <message id="ID_Host_Window_Save">
        <source></source>
        <translation>Enregistrer…</translation>
    </message>
    <message id="ID_Host_Window_Open">
        <source></source>
        <translation>Ouvrir le rapport</translation>
    </message>
    <message id="ID_Host_Window_Close">
        <source></source>
        <translation>Fermer</translation>
    </message>
    <message id="ID_Host_Window_Copied">
        <source></source>
        <translation>Le rapport est copié. Collez-le avant de fermer cette fenêtre.</translation>
    </message>
    <message id="ID_Host_Window_Saved">
        <source></source>
        <translation>Le rapport est enregistré dans %1</translation>
    </message>
    <message id="ID_Host_Window_NotWritten">
        <source></source>
        <translation>Impossible d'écrire le rapport dans %1. Choisissez un autre emplacement.</translation>
    </message>
    <message id="ID_Host_Window_NotOpened">
        <source></source>
        <translation>Aucun programme n'a pu ouvrir le rapport. Il se trouve dans %1</translation>
    </message>
</context>
</TS>
