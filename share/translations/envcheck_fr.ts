<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name></name>
    <message id="ID_CameraPage_1">
        <source></source>
        <translation>1. Vérifiez que l'appareil est branché et choisi dans la liste.</translation>
    </message>
    <message id="ID_CameraPage_2">
        <source></source>
        <translation>2. Fermez les autres programmes qui utilisent la caméra.</translation>
    </message>
    <message id="ID_CameraPage_3">
        <source></source>
        <translation>3. Ouvrez le cache de l'objectif ou allumez la caméra.</translation>
    </message>
    <message id="ID_CameraPage_4">
        <source></source>
        <translation>4. Autorisez la caméra dans les paramètres de confidentialité.</translation>
    </message>
    <message id="ID_CameraPage_5">
        <source></source>
        <translation>5. Redémarrez l'ordinateur ou essayez un autre appareil.</translation>
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
        <translation>La caméra ne donne pas d'image</translation>
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
        <translation>Vous êtes prêt pour le cours.</translation>
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
        <translation>La vérification n'est pas terminée. Voulez-vous quitter ?</translation>
    </message>
    <message id="ID_Engine_BuiltInResponder">
        <source></source>
        <translation>Non mesuré : aucun serveur</translation>
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
    <message id="ID_HeadsetPage_2">
        <source></source>
        <translation>2. Augmentez le volume et vérifiez que le son n'est pas coupé.</translation>
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
        <translation>Oui, j'entends</translation>
    </message>
    <message id="ID_HeadsetPage_CanNotHear">
        <source></source>
        <translation>Je n'entends pas</translation>
    </message>
    <message id="ID_HeadsetPage_ChoseWrong">
        <source></source>
        <translation>Le bon son n'a pas été choisi</translation>
    </message>
    <message id="ID_HeadsetPage_ClickHere">
        <source></source>
        <translation>Vous n'entendez pas le son ? Cliquez ici</translation>
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
        <translation>Appuyez sur le bouton de lecture, écoutez et choisissez le son que vous entendez.</translation>
    </message>
    <message id="ID_HeadsetPage_Typing">
        <source></source>
        <translation>Clavier</translation>
    </message>
    <message id="ID_HeadsetPage_choseNo">
        <source></source>
        <translation>Vous n'entendez pas le son</translation>
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
        <translation>Périphérique par défaut après</translation>
    </message>
    <message id="ID_Host_Figure_DefaultBefore">
        <source></source>
        <translation>Périphérique par défaut avant</translation>
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
        <translation>Fréquence du ronflement</translation>
    </message>
    <message id="ID_Host_Figure_HumShare">
        <source></source>
        <translation>Ronflement dans le bruit</translation>
    </message>
    <message id="ID_Host_Figure_Jitter">
        <source></source>
        <translation>Gigue</translation>
    </message>
    <message id="ID_Host_Figure_Loss">
        <source></source>
        <translation>Perte de paquets</translation>
    </message>
    <message id="ID_Host_Figure_MovedByUser">
        <source></source>
        <translation>Volume modifié par l’utilisateur</translation>
    </message>
    <message id="ID_Host_Figure_MutedAfter">
        <source></source>
        <translation>Muet après</translation>
    </message>
    <message id="ID_Host_Figure_MutedBefore">
        <source></source>
        <translation>Muet avant</translation>
    </message>
    <message id="ID_Host_Figure_NoiseFloor">
        <source></source>
        <translation>Bruit de fond</translation>
    </message>
    <message id="ID_Host_Figure_OneWayDelay">
        <source></source>
        <translation>Délai aller (moitié de l’aller-retour)</translation>
    </message>
    <message id="ID_Host_Figure_Peak">
        <source></source>
        <translation>Son le plus fort</translation>
    </message>
    <message id="ID_Host_Figure_Pictures">
        <source></source>
        <translation>Images</translation>
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
    <message id="ID_Host_Flag_NoToGoodPicture">
        <source></source>
        <translation>Réponse « non », mais des images animées arrivaient.</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodSound">
        <source></source>
        <translation>Réponse « non », mais le micro captait du son.</translation>
    </message>
    <message id="ID_Host_Flag_NoToRightSound">
        <source></source>
        <translation>Réponse « non », mais le bon son a été choisi.</translation>
    </message>
    <message id="ID_Host_Flag_YesToBlackPicture">
        <source></source>
        <translation>Réponse « oui » devant une image noire.</translation>
    </message>
    <message id="ID_Host_Flag_YesToFrozenPicture">
        <source></source>
        <translation>Réponse « oui » devant une image figée.</translation>
    </message>
    <message id="ID_Host_Flag_YesToMutedSpeaker">
        <source></source>
        <translation>Réponse « oui » alors que le haut-parleur était muet.</translation>
    </message>
    <message id="ID_Host_Flag_YesToSilence">
        <source></source>
        <translation>Réponse « oui », mais le micro ne captait rien.</translation>
    </message>
    <message id="ID_Host_Flag_YesToWrongSound">
        <source></source>
        <translation>Réponse « oui », mais le bon son n’a pas été choisi.</translation>
    </message>
    <message id="ID_Host_Flag_YesWithoutPictures">
        <source></source>
        <translation>Réponse « oui », mais aucune image n’arrivait.</translation>
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
    <message id="ID_Host_LastGoodRun">
        <source></source>
        <translation>Dernier contrôle réussi</translation>
    </message>
    <message id="ID_Host_LastGoodRun_None">
        <source></source>
        <translation>Aucun contrôle antérieur n’a entièrement réussi.</translation>
    </message>
    <message id="ID_Host_MeasuringFailed">
        <source></source>
        <translation>échec de la mesure : %1</translation>
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
        <translation>non mesuré : %1</translation>
    </message>
    <message id="ID_Host_Outcome_Failed">
        <source></source>
        <translation>Terminé avec des problèmes</translation>
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
    <message id="ID_Host_Reason_NoAnswer">
        <source></source>
        <translation>le serveur ne répond pas</translation>
    </message>
    <message id="ID_Host_Reason_NotRecorded">
        <source></source>
        <translation>le moteur ne l’enregistre pas</translation>
    </message>
    <message id="ID_Host_Reason_Off">
        <source></source>
        <translation>l’appareil est désactivé</translation>
    </message>
    <message id="ID_Host_Reason_Scripted">
        <source></source>
        <translation>un appareil simulé n’a pas cette valeur</translation>
    </message>
    <message id="ID_Host_Reason_Silent">
        <source></source>
        <translation>rien n’est venu de l’appareil</translation>
    </message>
    <message id="ID_Host_Reason_StepNotOpened">
        <source></source>
        <translation>cette étape n’a pas été ouverte</translation>
    </message>
    <message id="ID_Host_Redacted_Hash">
        <source></source>
        <translation>Adresses, noms et comptes sont remplacés par des codes courts.</translation>
    </message>
    <message id="ID_Host_Redacted_Personal">
        <source></source>
        <translation>Adresses, noms et comptes sont omis.</translation>
    </message>
    <message id="ID_Host_ReportIsIn">
        <source></source>
        <translation>Le rapport se trouve dans %1</translation>
    </message>
    <message id="ID_Host_Report_Answer">
        <source></source>
        <translation>Réponse</translation>
    </message>
    <message id="ID_Host_Report_Contradiction">
        <source></source>
        <translation>Contradiction</translation>
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
        <translation>Date</translation>
    </message>
    <message id="ID_Host_Report_Title">
        <source></source>
        <translation>Rapport du contrôle du système</translation>
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
        <translation>2. Réactivez le micro : cherchez un bouton ou une touche.</translation>
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
        <translation>J'entends et je vois</translation>
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
    <message id="ID_Host_Remedy_ServerLost">
        <source></source>
        <translation>Le service d'image et de son du système s'est arrêté : fermez la session et rouvrez-la, ou redémarrez l'ordinateur.</translation>
    </message>
    <message id="ID_Host_Remedy_Failed">
        <source></source>
        <translation>L'appareil est tombé en panne : rebranchez-le ou essayez-en un autre.</translation>
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
