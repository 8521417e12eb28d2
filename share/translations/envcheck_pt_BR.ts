<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name></name>
    <message id="ID_CameraPage_1">
        <source></source>
        <translation>1. Verifique se o dispositivo está conectado e escolhido na lista.</translation>
    </message>
    <message id="ID_CameraPage_2">
        <source></source>
        <translation>2. Feche outros programas que usam a câmera.</translation>
    </message>
    <message id="ID_CameraPage_3">
        <source></source>
        <translation>3. Abra a tampa da lente ou ligue a câmera com a tecla dela.</translation>
    </message>
    <message id="ID_CameraPage_4">
        <source></source>
        <translation>4. Permita o uso da câmera nas configurações de privacidade.</translation>
    </message>
    <message id="ID_CameraPage_5">
        <source></source>
        <translation>5. Reinicie o computador ou tente outro dispositivo.</translation>
    </message>
    <message id="ID_CameraPage_Camera">
        <source></source>
        <translation>Câmera:</translation>
    </message>
    <message id="ID_CameraPage_CameraDisabled">
        <source></source>
        <translation>A câmera está desligada</translation>
    </message>
    <message id="ID_CameraPage_CannotSee">
        <source></source>
        <translation>Não me vejo</translation>
    </message>
    <message id="ID_CameraPage_ClickHere">
        <source></source>
        <translation>Não consegue se ver? Clique aqui</translation>
    </message>
    <message id="ID_CameraPage_DisabledWillMakeCameraUnusable">
        <source></source>
        <translation>A câmera está desligada. Escolha uma aqui ou ative-a.</translation>
    </message>
    <message id="ID_CameraPage_No">
        <source></source>
        <translation>Não me vejo</translation>
    </message>
    <message id="ID_CameraPage_NoCameraImageWasDetected">
        <source></source>
        <translation>A câmera não mostra imagem</translation>
    </message>
    <message id="ID_CameraPage_NotDetected">
        <source></source>
        <translation>Este teste ficou sem resposta</translation>
    </message>
    <message id="ID_CameraPage_Yes">
        <source></source>
        <translation>Eu me vejo</translation>
    </message>
    <message id="ID_CameraPage_choseNo">
        <source></source>
        <translation>Você não consegue se ver</translation>
    </message>
    <message id="ID_Camera_Check">
        <source></source>
        <translation>Câmera</translation>
    </message>
    <message id="ID_CheckResultPage_Abnormal">
        <source></source>
        <translation>Falhou</translation>
    </message>
    <message id="ID_CheckResultPage_CheckEquipmentAndRetest">
        <source></source>
        <translation>Corrija e teste novamente.</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentAbnormal">
        <source></source>
        <translation>Algo não funciona</translation>
    </message>
    <message id="ID_CheckResultPage_EquipmentNormal">
        <source></source>
        <translation>Tudo funciona</translation>
    </message>
    <message id="ID_CheckResultPage_Headphone">
        <source></source>
        <translation>Som</translation>
    </message>
    <message id="ID_CheckResultPage_Normal">
        <source></source>
        <translation>Aprovado</translation>
    </message>
    <message id="ID_CheckResultPage_OK">
        <source></source>
        <translation>Tudo pronto para a aula.</translation>
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
        <translation>A verificação não terminou. Deseja sair mesmo assim?</translation>
    </message>
    <message id="ID_Engine_BuiltInResponder">
        <source></source>
        <translation>Não medido: sem servidor</translation>
    </message>
    <message id="ID_Engine_NoCamera">
        <source></source>
        <translation>Nenhuma câmera</translation>
    </message>
    <message id="ID_Engine_NoMicrophone">
        <source></source>
        <translation>Nenhum microfone</translation>
    </message>
    <message id="ID_Engine_NoSpeaker">
        <source></source>
        <translation>Nenhum alto-falante encontrado</translation>
    </message>
    <message id="ID_Engine_NoSpeakerSelected">
        <source></source>
        <translation>Nenhum alto-falante escolhido</translation>
    </message>
    <message id="ID_Engine_NotConnected">
        <source></source>
        <translation>Não conectado</translation>
    </message>
    <message id="ID_HeadsetPage_2">
        <source></source>
        <translation>2. Aumente o volume e veja se o som não está mudo.</translation>
    </message>
    <message id="ID_HeadsetPage_3">
        <source></source>
        <translation>3. Encaixe bem o plugue ou reconecte o Bluetooth.</translation>
    </message>
    <message id="ID_HeadsetPage_4">
        <source></source>
        <translation>4. Escolha a mesma saída nas configurações de som do sistema.</translation>
    </message>
    <message id="ID_HeadsetPage_Bubble">
        <source></source>
        <translation>Bolhas</translation>
    </message>
    <message id="ID_HeadsetPage_CanHear">
        <source></source>
        <translation>Sim, eu ouço</translation>
    </message>
    <message id="ID_HeadsetPage_CanNotHear">
        <source></source>
        <translation>Não, não ouço</translation>
    </message>
    <message id="ID_HeadsetPage_ChoseWrong">
        <source></source>
        <translation>O som certo não foi escolhido</translation>
    </message>
    <message id="ID_HeadsetPage_ClickHere">
        <source></source>
        <translation>Não ouve o som? Clique aqui</translation>
    </message>
    <message id="ID_HeadsetPage_Doorbell">
        <source></source>
        <translation>Campainha</translation>
    </message>
    <message id="ID_HeadsetPage_Piano">
        <source></source>
        <translation>Piano</translation>
    </message>
    <message id="ID_HeadsetPage_Play">
        <source></source>
        <translation>Tocar</translation>
    </message>
    <message id="ID_HeadsetPage_PlayAgain">
        <source></source>
        <translation>Repetir</translation>
    </message>
    <message id="ID_HeadsetPage_Playing">
        <source></source>
        <translation>Tocando</translation>
    </message>
    <message id="ID_HeadsetPage_PleaseSelectTheAnswer">
        <source></source>
        <translation>Que som você ouve?</translation>
    </message>
    <message id="ID_HeadsetPage_Saxophone">
        <source></source>
        <translation>Saxofone</translation>
    </message>
    <message id="ID_HeadsetPage_Seagull">
        <source></source>
        <translation>Gaivota</translation>
    </message>
    <message id="ID_HeadsetPage_Shutter">
        <source></source>
        <translation>Obturador</translation>
    </message>
    <message id="ID_HeadsetPage_Speaker">
        <source></source>
        <translation>Saída:</translation>
    </message>
    <message id="ID_HeadsetPage_Thunder">
        <source></source>
        <translation>Trovão</translation>
    </message>
    <message id="ID_HeadsetPage_Tip">
        <source></source>
        <translation>Clique no botão de tocar, ouça e escolha o som que você ouve.</translation>
    </message>
    <message id="ID_HeadsetPage_Typing">
        <source></source>
        <translation>Digitação</translation>
    </message>
    <message id="ID_HeadsetPage_choseNo">
        <source></source>
        <translation>Você não ouve o som</translation>
    </message>
    <message id="ID_HeadsetPage_play">
        <source></source>
        <translation>Tocar</translation>
    </message>
    <message id="ID_HeadsetPage_sound0">
        <source></source>
        <translation>Som 1</translation>
    </message>
    <message id="ID_HeadsetPage_sound1">
        <source></source>
        <translation>Som 2</translation>
    </message>
    <message id="ID_HeadsetPage_sound2">
        <source></source>
        <translation>Som 3</translation>
    </message>
    <message id="ID_HeadsetPage_sound3">
        <source></source>
        <translation>Som 4</translation>
    </message>
    <message id="ID_Host_Changes">
        <source></source>
        <translation>Mudanças</translation>
    </message>
    <message id="ID_Host_Changes_None">
        <source></source>
        <translation>Nada mudou desde então.</translation>
    </message>
    <message id="ID_Host_Figure_Answered">
        <source></source>
        <translation>Sondas respondidas</translation>
    </message>
    <message id="ID_Host_Figure_Bandwidth">
        <source></source>
        <translation>Frequência máxima captada</translation>
    </message>
    <message id="ID_Host_Figure_Black">
        <source></source>
        <translation>Imagens pretas</translation>
    </message>
    <message id="ID_Host_Figure_Brightness">
        <source></source>
        <translation>Brilho</translation>
    </message>
    <message id="ID_Host_Figure_Clipped">
        <source></source>
        <translation>Som saturado</translation>
    </message>
    <message id="ID_Host_Figure_DefaultAfter">
        <source></source>
        <translation>Dispositivo padrão depois</translation>
    </message>
    <message id="ID_Host_Figure_DefaultBefore">
        <source></source>
        <translation>Dispositivo padrão antes</translation>
    </message>
    <message id="ID_Host_Figure_Delay">
        <source></source>
        <translation>Ida e volta (mediana)</translation>
    </message>
    <message id="ID_Host_Figure_Delay5">
        <source></source>
        <translation>Ida e volta (percentil 5)</translation>
    </message>
    <message id="ID_Host_Figure_Delay95">
        <source></source>
        <translation>Ida e volta (percentil 95)</translation>
    </message>
    <message id="ID_Host_Figure_FirstPicture">
        <source></source>
        <translation>Tempo até a primeira imagem</translation>
    </message>
    <message id="ID_Host_Figure_Frozen">
        <source></source>
        <translation>Imagens congeladas</translation>
    </message>
    <message id="ID_Host_Figure_Height">
        <source></source>
        <translation>Altura da imagem</translation>
    </message>
    <message id="ID_Host_Figure_HumFrequency">
        <source></source>
        <translation>Frequência do zumbido</translation>
    </message>
    <message id="ID_Host_Figure_HumShare">
        <source></source>
        <translation>Zumbido no ruído</translation>
    </message>
    <message id="ID_Host_Figure_Jitter">
        <source></source>
        <translation>Variação (jitter)</translation>
    </message>
    <message id="ID_Host_Figure_Loss">
        <source></source>
        <translation>Perda de pacotes</translation>
    </message>
    <message id="ID_Host_Figure_MovedByUser">
        <source></source>
        <translation>Volume alterado pelo usuário</translation>
    </message>
    <message id="ID_Host_Figure_MutedAfter">
        <source></source>
        <translation>Mudo depois</translation>
    </message>
    <message id="ID_Host_Figure_MutedBefore">
        <source></source>
        <translation>Mudo antes</translation>
    </message>
    <message id="ID_Host_Figure_NoiseFloor">
        <source></source>
        <translation>Ruído de fundo</translation>
    </message>
    <message id="ID_Host_Figure_OneWayDelay">
        <source></source>
        <translation>Atraso de ida (metade da ida e volta)</translation>
    </message>
    <message id="ID_Host_Figure_Peak">
        <source></source>
        <translation>Som mais alto</translation>
    </message>
    <message id="ID_Host_Figure_Pictures">
        <source></source>
        <translation>Imagens</translation>
    </message>
    <message id="ID_Host_Figure_Rate">
        <source></source>
        <translation>Imagens por segundo</translation>
    </message>
    <message id="ID_Host_Figure_Seconds">
        <source></source>
        <translation>Tempo medido</translation>
    </message>
    <message id="ID_Host_Figure_Sent">
        <source></source>
        <translation>Sondas enviadas</translation>
    </message>
    <message id="ID_Host_Figure_SoundHeard">
        <source></source>
        <translation>Som captado</translation>
    </message>
    <message id="ID_Host_Figure_SoundPlayed">
        <source></source>
        <translation>Som tocado</translation>
    </message>
    <message id="ID_Host_Figure_VolumeAfter">
        <source></source>
        <translation>Volume depois</translation>
    </message>
    <message id="ID_Host_Figure_VolumeBefore">
        <source></source>
        <translation>Volume antes</translation>
    </message>
    <message id="ID_Host_Figure_Width">
        <source></source>
        <translation>Largura da imagem</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodPicture">
        <source></source>
        <translation>A resposta foi não, mas chegavam imagens em movimento.</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodSound">
        <source></source>
        <translation>A resposta foi não, mas o microfone captava som.</translation>
    </message>
    <message id="ID_Host_Flag_NoToRightSound">
        <source></source>
        <translation>A resposta foi não, mas o som certo foi escolhido.</translation>
    </message>
    <message id="ID_Host_Flag_YesToBlackPicture">
        <source></source>
        <translation>A resposta foi sim para uma imagem preta.</translation>
    </message>
    <message id="ID_Host_Flag_YesToFrozenPicture">
        <source></source>
        <translation>A resposta foi sim para uma imagem congelada.</translation>
    </message>
    <message id="ID_Host_Flag_YesToMutedSpeaker">
        <source></source>
        <translation>A resposta foi sim com o alto-falante mudo.</translation>
    </message>
    <message id="ID_Host_Flag_YesToSilence">
        <source></source>
        <translation>A resposta foi sim, mas o microfone não captou nada.</translation>
    </message>
    <message id="ID_Host_Flag_YesToWrongSound">
        <source></source>
        <translation>A resposta foi sim, mas o som certo não foi escolhido.</translation>
    </message>
    <message id="ID_Host_Flag_YesWithoutPictures">
        <source></source>
        <translation>A resposta foi sim, mas não chegavam imagens.</translation>
    </message>
    <message id="ID_Host_Grade">
        <source></source>
        <translation>Qualidade da rede</translation>
    </message>
    <message id="ID_Host_Grade_Fair">
        <source></source>
        <translation>razoável</translation>
    </message>
    <message id="ID_Host_Grade_FairUpTo">
        <source></source>
        <translation>razoável até %1</translation>
    </message>
    <message id="ID_Host_Grade_Good">
        <source></source>
        <translation>boa</translation>
    </message>
    <message id="ID_Host_Grade_GoodUpTo">
        <source></source>
        <translation>boa até %1</translation>
    </message>
    <message id="ID_Host_Grade_Poor">
        <source></source>
        <translation>ruim</translation>
    </message>
    <message id="ID_Host_LastGoodRun">
        <source></source>
        <translation>Última verificação boa</translation>
    </message>
    <message id="ID_Host_LastGoodRun_None">
        <source></source>
        <translation>Não há verificação anterior em que tudo passou.</translation>
    </message>
    <message id="ID_Host_MeasuringFailed">
        <source></source>
        <translation>a medição falhou: %1</translation>
    </message>
    <message id="ID_Host_No">
        <source></source>
        <translation>Não</translation>
    </message>
    <message id="ID_Host_NoAnswer">
        <source></source>
        <translation>Sem resposta</translation>
    </message>
    <message id="ID_Host_NotMeasured">
        <source></source>
        <translation>não medido: %1</translation>
    </message>
    <message id="ID_Host_Outcome_Failed">
        <source></source>
        <translation>Concluída com problemas</translation>
    </message>
    <message id="ID_Host_Outcome_LeftEarly">
        <source></source>
        <translation>Encerrada antes do fim</translation>
    </message>
    <message id="ID_Host_Outcome_Passed">
        <source></source>
        <translation>Tudo passou</translation>
    </message>
    <message id="ID_Host_Outcome_PutOut">
        <source></source>
        <translation>A sala encerrou a sessão</translation>
    </message>
    <message id="ID_Host_Reason_Absent">
        <source></source>
        <translation>não há dispositivo</translation>
    </message>
    <message id="ID_Host_Reason_Busy">
        <source></source>
        <translation>outro programa usa o dispositivo</translation>
    </message>
    <message id="ID_Host_Reason_Denied">
        <source></source>
        <translation>o sistema nega o acesso</translation>
    </message>
    <message id="ID_Host_Reason_Failed">
        <source></source>
        <translation>o dispositivo falhou</translation>
    </message>
    <message id="ID_Host_Reason_Hung">
        <source></source>
        <translation>o dispositivo não responde</translation>
    </message>
    <message id="ID_Host_Reason_NoAnswer">
        <source></source>
        <translation>o servidor não responde</translation>
    </message>
    <message id="ID_Host_Reason_NotRecorded">
        <source></source>
        <translation>o mecanismo não registra isso</translation>
    </message>
    <message id="ID_Host_Reason_Off">
        <source></source>
        <translation>o dispositivo está desligado</translation>
    </message>
    <message id="ID_Host_Reason_Scripted">
        <source></source>
        <translation>um dispositivo simulado não tem este valor</translation>
    </message>
    <message id="ID_Host_Reason_Silent">
        <source></source>
        <translation>nada veio do dispositivo</translation>
    </message>
    <message id="ID_Host_Reason_StepNotOpened">
        <source></source>
        <translation>esta etapa não foi aberta</translation>
    </message>
    <message id="ID_Host_Redacted_Hash">
        <source></source>
        <translation>Endereços, nomes e contas foram trocados por códigos curtos.</translation>
    </message>
    <message id="ID_Host_Redacted_Personal">
        <source></source>
        <translation>Endereços, nomes e contas foram omitidos.</translation>
    </message>
    <message id="ID_Host_ReportIsIn">
        <source></source>
        <translation>O relatório está em %1</translation>
    </message>
    <message id="ID_Host_Report_Answer">
        <source></source>
        <translation>Resposta</translation>
    </message>
    <message id="ID_Host_Report_Contradiction">
        <source></source>
        <translation>Contradição</translation>
    </message>
    <message id="ID_Host_Report_Device">
        <source></source>
        <translation>Dispositivo</translation>
    </message>
    <message id="ID_Host_Report_Id">
        <source></source>
        <translation>Número do relatório</translation>
    </message>
    <message id="ID_Host_Report_Later">
        <source></source>
        <translation>Medido depois</translation>
    </message>
    <message id="ID_Host_Report_Measurements">
        <source></source>
        <translation>Medições</translation>
    </message>
    <message id="ID_Host_Report_Notice">
        <source></source>
        <translation>Observação</translation>
    </message>
    <message id="ID_Host_Report_Outcome">
        <source></source>
        <translation>Resultado</translation>
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
        <translation>Som certo escolhido</translation>
    </message>
    <message id="ID_Host_Report_Scripted">
        <source></source>
        <translation>Os dispositivos eram simulados, não os desta máquina.</translation>
    </message>
    <message id="ID_Host_Report_Summary">
        <source></source>
        <translation>Resumo</translation>
    </message>
    <message id="ID_Host_Report_System">
        <source></source>
        <translation>Máquina e conta</translation>
    </message>
    <message id="ID_Host_Report_Time">
        <source></source>
        <translation>Data</translation>
    </message>
    <message id="ID_Host_Report_Title">
        <source></source>
        <translation>Relatório da verificação do sistema</translation>
    </message>
    <message id="ID_Host_Yes">
        <source></source>
        <translation>Sim</translation>
    </message>
    <message id="ID_Kestrel_SystemTesting">
        <source></source>
        <translation>Verificação do sistema</translation>
    </message>
    <message id="ID_MessageBox_Critical">
        <source></source>
        <translation>Erro</translation>
    </message>
    <message id="ID_MessageBox_Information">
        <source></source>
        <translation>Informação</translation>
    </message>
    <message id="ID_MessageBox_Question">
        <source></source>
        <translation>Pergunta</translation>
    </message>
    <message id="ID_MessageBox_Warning">
        <source></source>
        <translation>Aviso</translation>
    </message>
    <message id="ID_Microphone">
        <source></source>
        <translation>Microfone:</translation>
    </message>
    <message id="ID_MicrophonePage_2">
        <source></source>
        <translation>2. Ative o microfone: procure um botão ou tecla de mudo.</translation>
    </message>
    <message id="ID_MicrophonePage_3">
        <source></source>
        <translation>3. Aumente o volume e fale perto do microfone.</translation>
    </message>
    <message id="ID_MicrophonePage_4">
        <source></source>
        <translation>4. Permita o uso do microfone nas configurações de privacidade.</translation>
    </message>
    <message id="ID_MicrophonePage_Again">
        <source></source>
        <translation>Repetir</translation>
    </message>
    <message id="ID_MicrophonePage_CanHearOrSee">
        <source></source>
        <translation>Sim, ouço e vejo</translation>
    </message>
    <message id="ID_MicrophonePage_CanNotHearOrSee">
        <source></source>
        <translation>Não ouço ou não vejo</translation>
    </message>
    <message id="ID_MicrophonePage_ChoseNo">
        <source></source>
        <translation>Você não se ouve ou não vê a barra</translation>
    </message>
    <message id="ID_MicrophonePage_ClickHere">
        <source></source>
        <translation>Não se ouve ou não vê a barra? Clique aqui</translation>
    </message>
    <message id="ID_MicrophonePage_DisabledWillMakeMicrophoneUnusable">
        <source></source>
        <translation>O microfone está desligado. Escolha um aqui ou ative-o.</translation>
    </message>
    <message id="ID_MicrophonePage_MayNoisy">
        <source></source>
        <translation>Acima de 100 pode haver ruído.</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneDisabled">
        <source></source>
        <translation>O microfone está desligado</translation>
    </message>
    <message id="ID_MicrophonePage_MicrophoneTest">
        <source></source>
        <translation>Clique em “Gravar” e conte em voz alta de 1 a 10. Ouça sua voz e veja se a barra verde se move.</translation>
    </message>
    <message id="ID_MicrophonePage_NoMicrophoneWasDetected">
        <source></source>
        <translation>Nenhum microfone encontrado</translation>
    </message>
    <message id="ID_MicrophonePage_NoVoiceWasRecorded">
        <source></source>
        <translation>O microfone não capta som</translation>
    </message>
    <message id="ID_MicrophonePage_OfS">
        <source></source>
        <translation>%1 s</translation>
    </message>
    <message id="ID_MicrophonePage_Recording">
        <source></source>
        <translation>Fale…</translation>
    </message>
    <message id="ID_Microphone_Check">
        <source></source>
        <translation>Mic</translation>
    </message>
    <message id="ID_NetworkPage_1">
        <source></source>
        <translation>1. Fique mais perto do roteador Wi-Fi ou use um cabo de rede.</translation>
    </message>
    <message id="ID_NetworkPage_2">
        <source></source>
        <translation>2. Pare downloads e vídeos, também em outros dispositivos.</translation>
    </message>
    <message id="ID_NetworkPage_3">
        <source></source>
        <translation>3. Desligue a VPN e o proxy ou reinicie o roteador.</translation>
    </message>
    <message id="ID_NetworkPage_Account">
        <source></source>
        <translation>Conta:</translation>
    </message>
    <message id="ID_NetworkPage_AvailableCacheSpace">
        <source></source>
        <translation>Cache disponível:</translation>
    </message>
    <message id="ID_NetworkPage_CPU">
        <source></source>
        <translation>Processador:</translation>
    </message>
    <message id="ID_NetworkPage_ClickHere">
        <source></source>
        <translation>Rede lenta ou instável? Clique aqui</translation>
    </message>
    <message id="ID_NetworkPage_Client">
        <source></source>
        <translation>Cliente:</translation>
    </message>
    <message id="ID_NetworkPage_LostRate">
        <source></source>
        <translation>Taxa de perda:</translation>
    </message>
    <message id="ID_NetworkPage_NetworkDelay">
        <source></source>
        <translation>Atraso da rede:</translation>
    </message>
    <message id="ID_NetworkPage_NetworkSlowOrUnstable">
        <source></source>
        <translation>A rede está lenta ou instável</translation>
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
        <translation>Avançar</translation>
    </message>
    <message id="ID_Nickname_NetworkPage">
        <source></source>
        <translation>Apelido:</translation>
    </message>
    <message id="ID_OK">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="ID_Record">
        <source></source>
        <translation>Gravar</translation>
    </message>
    <message id="ID_Skip">
        <source></source>
        <translation>Pular</translation>
    </message>
    <message id="ID_Volume">
        <source></source>
        <translation>Volume:</translation>
    </message>
    <message id="ID_WelcomePage_StartTest">
        <source></source>
        <translation>Iniciar o teste</translation>
    </message>
    <message id="ID_WelcomePage_Welcome">
        <source></source>
        <translation>Boas-vindas à sala de aula on-line</translation>
    </message>
    <message id="ID_hardwaremgrinterface_NoSpeakerFound">
        <source></source>
        <translation>Nenhum alto-falante encontrado</translation>
    </message>
    <message id="ID_lumcamera_NoWebcamFound">
        <source></source>
        <translation>Nenhuma câmera encontrada</translation>
    </message>
    <message id="ID_Host_Reason_NoServer">
        <source></source>
        <translation>sem servidor</translation>
    </message>
    <message id="ID_Host_Reason_NoSuchHost">
        <source></source>
        <translation>o nome do servidor é desconhecido</translation>
    </message>
    <message id="ID_Host_Remedy">
        <source></source>
        <translation>O que fazer</translation>
    </message>
    <message id="ID_Host_Remedy_NoServer">
        <source></source>
        <translation>Só este computador foi medido, pois nenhum servidor está definido: peça o servidor à sua escola e defina-o com --server ou no arquivo de configuração.</translation>
    </message>
    <message id="ID_Host_Remedy_NoAnswer">
        <source></source>
        <translation>O servidor não respondeu: verifique se você está on-line e se nenhum firewall bloqueia UDP.</translation>
    </message>
    <message id="ID_Host_Remedy_NoSuchHost">
        <source></source>
        <translation>O nome do servidor é desconhecido: verifique como está escrito e se você está on-line.</translation>
    </message>
    <message id="ID_Host_Remedy_Slow">
        <source></source>
        <translation>A conexão está lenta: use um cabo ou fique mais perto do roteador Wi-Fi, e pare downloads e outras chamadas.</translation>
    </message>
    <message id="ID_Host_Remedy_Lossy">
        <source></source>
        <translation>Muitos dados se perdem no caminho: use um cabo ou fique mais perto do roteador Wi-Fi.</translation>
    </message>
    <message id="ID_Host_Remedy_LeftTooSoon">
        <source></source>
        <translation>Você saiu da etapa antes de qualquer medição: espere nela até os valores aparecerem.</translation>
    </message>
    <message id="ID_Host_Remedy_Absent">
        <source></source>
        <translation>Nenhum dispositivo foi encontrado: conecte um ou ligue-o e teste de novo.</translation>
    </message>
    <message id="ID_Host_Remedy_Off">
        <source></source>
        <translation>O dispositivo está desativado na lista: escolha um nela.</translation>
    </message>
    <message id="ID_Host_Remedy_Starting">
        <source></source>
        <translation>O dispositivo ainda estava iniciando: espere um pouco mais antes de responder.</translation>
    </message>
    <message id="ID_Host_Remedy_Busy">
        <source></source>
        <translation>Outro programa usa o dispositivo: feche esse programa e teste de novo.</translation>
    </message>
    <message id="ID_Host_Remedy_Denied">
        <source></source>
        <translation>O sistema nega o acesso ao dispositivo: permita-o nas configurações de privacidade.</translation>
    </message>
    <message id="ID_Host_Remedy_Hung">
        <source></source>
        <translation>O dispositivo não respondeu: desconecte-o e conecte-o de novo, ou reinicie o computador.</translation>
    </message>
    <message id="ID_Host_Remedy_Stalled">
        <source></source>
        <translation>A câmera não enviou imagem: desconecte-a e conecte-a de novo, ou escolha outra.</translation>
    </message>
    <message id="ID_Host_Remedy_Black">
        <source></source>
        <translation>A imagem estava preta: abra a tampa da lente e acenda a luz.</translation>
    </message>
    <message id="ID_Host_Remedy_Frozen">
        <source></source>
        <translation>A imagem não se mexia: desconecte a câmera e conecte-a de novo.</translation>
    </message>
    <message id="ID_Host_Remedy_Unplugged">
        <source></source>
        <translation>O dispositivo foi desconectado durante o teste: conecte-o de novo e verifique o cabo.</translation>
    </message>
    <message id="ID_Host_Remedy_ServerLost">
        <source></source>
        <translation>O serviço de imagem e som do sistema parou: saia da sessão e entre de novo, ou reinicie o computador.</translation>
    </message>
    <message id="ID_Host_Remedy_Failed">
        <source></source>
        <translation>O dispositivo falhou: conecte-o de novo ou tente outro.</translation>
    </message>
    <message id="ID_Host_Remedy_Silent">
        <source></source>
        <translation>O microfone não gravou nada: fale mais perto, verifique o botão dele ou escolha outro na lista.</translation>
    </message>
    <message id="ID_Host_Remedy_Muted">
        <source></source>
        <translation>O dispositivo está mudo: ative o som.</translation>
    </message>
    <message id="ID_Host_Remedy_VolumeZero">
        <source></source>
        <translation>O volume está em 0: aumente-o.</translation>
    </message>
    <message id="ID_Host_Remedy_WrongSound">
        <source></source>
        <translation>Você escolheu um som diferente do que foi tocado: aumente o volume e ouça de novo.</translation>
    </message>
    <message id="ID_Host_Remedy_NotSeen">
        <source></source>
        <translation>Você não se viu, embora a câmera tenha enviado imagens: verifique qual câmera está escolhida.</translation>
    </message>
    <message id="ID_Host_Remedy_NotHeard">
        <source></source>
        <translation>Você não ouviu nada, embora um som tenha sido tocado: aumente o volume e verifique qual alto-falante está escolhido.</translation>
    </message>
    <message id="ID_Host_Remedy_SelfNotHeard">
        <source></source>
        <translation>Você não se ouviu, embora o microfone tenha gravado som: aumente o volume e verifique qual alto-falante está escolhido.</translation>
    </message>
    <message id="ID_Host_Window_Title">
        <source></source>
        <translation>Resultado do teste</translation>
    </message>
    <message id="ID_Host_Window_Copy">
        <source></source>
        <translation>Copiar</translation>
    </message>
    <message id="ID_Host_Window_Save">
        <source></source>
        <translation>Salvar…</translation>
    </message>
    <message id="ID_Host_Window_Open">
        <source></source>
        <translation>Abrir relatório</translation>
    </message>
    <message id="ID_Host_Window_Close">
        <source></source>
        <translation>Fechar</translation>
    </message>
    <message id="ID_Host_Window_Copied">
        <source></source>
        <translation>O relatório foi copiado. Cole-o antes de fechar esta janela.</translation>
    </message>
    <message id="ID_Host_Window_Saved">
        <source></source>
        <translation>O relatório foi salvo em %1</translation>
    </message>
    <message id="ID_Host_Window_NotWritten">
        <source></source>
        <translation>Não é possível gravar o relatório em %1. Escolha outro lugar.</translation>
    </message>
    <message id="ID_Host_Window_NotOpened">
        <source></source>
        <translation>Nenhum programa conseguiu abrir o relatório. Ele está em %1</translation>
    </message>
</context>
</TS>
