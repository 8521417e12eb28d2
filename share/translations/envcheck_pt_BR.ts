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
    <message id="ID_Engine_Camera_Absent">
        <source></source>
        <translation>Nenhuma câmera encontrada.
Conecte uma a este computador.</translation>
    </message>
    <message id="ID_Engine_Camera_Black">
        <source></source>
        <translation>A imagem está preta.
Abra a tampa da lente ou acenda uma luz.</translation>
    </message>
    <message id="ID_Engine_Camera_Busy">
        <source></source>
        <translation>Outro programa está usando a câmera.
Feche esse programa.</translation>
    </message>
    <message id="ID_Engine_Camera_BusyBy">
        <source></source>
        <translation>%1 está usando a câmera.
Feche esse programa.</translation>
    </message>
    <message id="ID_Engine_Camera_Denied">
        <source></source>
        <translation>O sistema nega o acesso à câmera.
Permita-o nas configurações de privacidade do sistema.</translation>
    </message>
    <message id="ID_Engine_Camera_Failed">
        <source></source>
        <translation>A câmera não funciona.
Desconecte-a e conecte-a de novo, ou escolha outra.</translation>
    </message>
    <message id="ID_Engine_Camera_Hung">
        <source></source>
        <translation>A câmera não responde.
Desconecte-a e conecte-a de novo, ou reinicie o computador.</translation>
    </message>
    <message id="ID_Engine_Camera_NotBuilt">
        <source></source>
        <translation>Este programa não pode usar câmeras neste sistema.
Teste a sua em outro programa.</translation>
    </message>
    <message id="ID_Engine_Camera_ServerLost">
        <source></source>
        <translation>O serviço de câmera deste computador não está em execução.
Aguarde um momento ou reinicie o computador.</translation>
    </message>
    <message id="ID_Engine_Camera_Stalled">
        <source></source>
        <translation>A câmera não envia imagens.
Desconecte-a e conecte-a de novo, ou escolha outra.</translation>
    </message>
    <message id="ID_Engine_Camera_Starting">
        <source></source>
        <translation>A câmera está iniciando…</translation>
    </message>
    <message id="ID_Engine_Camera_Unplugged">
        <source></source>
        <translation>A câmera foi desconectada.
Conecte-a de novo ou escolha outra.</translation>
    </message>
    <message id="ID_Engine_Camera_Unreadable">
        <source></source>
        <translation>As imagens da câmera não podem ser exibidas aqui.
Escolha outra câmera ou outro formato nas configurações dela.</translation>
    </message>
    <message id="ID_Engine_File_BadEnd">
        <source></source>
        <translation>no Windows um nome não pode terminar com ponto nem espaço</translation>
    </message>
    <message id="ID_Engine_File_BadLetter">
        <source></source>
        <translation>no Windows um nome não pode conter &lt; &gt; : " | ? * nem caracteres de controle</translation>
    </message>
    <message id="ID_Engine_File_DeadLink">
        <source></source>
        <translation>é um link que não leva a lugar nenhum</translation>
    </message>
    <message id="ID_Engine_File_DeviceName">
        <source></source>
        <translation>%1 é o nome de um dispositivo no Windows</translation>
    </message>
    <message id="ID_Engine_File_DiskSilent">
        <source></source>
        <translation>o disco não responde</translation>
    </message>
    <message id="ID_Engine_File_ForeignLink">
        <source></source>
        <translation>é um link que pertence a outro usuário</translation>
    </message>
    <message id="ID_Engine_File_LockHeld">
        <source></source>
        <translation>outro programa detém o arquivo de bloqueio %1</translation>
    </message>
    <message id="ID_Engine_File_LockNotMade">
        <source></source>
        <translation>não é possível criar o arquivo de bloqueio</translation>
    </message>
    <message id="ID_Engine_File_LockNotRegular">
        <source></source>
        <translation>o arquivo de bloqueio %1 não é um arquivo comum</translation>
    </message>
    <message id="ID_Engine_File_NoFolder">
        <source></source>
        <translation>não é possível criar a pasta</translation>
    </message>
    <message id="ID_Engine_File_NotMade">
        <source></source>
        <translation>não é possível gerar o novo conteúdo; o disco está cheio?</translation>
    </message>
    <message id="ID_Engine_File_NotRegular">
        <source></source>
        <translation>não é um arquivo comum</translation>
    </message>
    <message id="ID_Engine_File_TooLarge">
        <source></source>
        <translation>passa de %1 MiB</translation>
    </message>
    <message id="ID_Engine_File_TooManyChanges">
        <source></source>
        <translation>muitas alterações aguardam o disco</translation>
    </message>
    <message id="ID_Engine_Json_Document">
        <source></source>
        <translation>o documento deve ser um objeto</translation>
    </message>
    <message id="ID_Engine_Json_Empty">
        <source></source>
        <translation>não pode estar vazio</translation>
    </message>
    <message id="ID_Engine_Json_Flag">
        <source></source>
        <translation>deve ser true ou false</translation>
    </message>
    <message id="ID_Engine_Json_Invalid">
        <source></source>
        <translation>JSON inválido: %1</translation>
    </message>
    <message id="ID_Engine_Json_List">
        <source></source>
        <translation>deve ser uma lista</translation>
    </message>
    <message id="ID_Engine_Json_Missing">
        <source></source>
        <translation>está faltando</translation>
    </message>
    <message id="ID_Engine_Json_Number">
        <source></source>
        <translation>deve ser um número</translation>
    </message>
    <message id="ID_Engine_Json_Object">
        <source></source>
        <translation>deve ser um objeto</translation>
    </message>
    <message id="ID_Engine_Json_ShortList">
        <source></source>
        <translation>deve ser uma lista de no máximo %1 elementos</translation>
    </message>
    <message id="ID_Engine_Json_ShortText">
        <source></source>
        <translation>deve ser um texto de no máximo %1 caracteres</translation>
    </message>
    <message id="ID_Engine_Json_Text">
        <source></source>
        <translation>deve ser um texto</translation>
    </message>
    <message id="ID_Engine_Json_Twice">
        <source></source>
        <translation>aparece duas vezes</translation>
    </message>
    <message id="ID_Engine_Json_Unknown">
        <source></source>
        <translation>não é um campo conhecido aqui</translation>
    </message>
    <message id="ID_Engine_Json_WholeNumber">
        <source></source>
        <translation>deve ser um número inteiro de %1 a %2</translation>
    </message>
    <message id="ID_Engine_Json_Word">
        <source></source>
        <translation>deve ser uma destas palavras: %1</translation>
    </message>
    <message id="ID_Engine_Json_WordList">
        <source></source>
        <translation>deve ser uma lista destas palavras: %1</translation>
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
    <message id="ID_Engine_Scenario_Base">
        <source></source>
        <translation>deve indicar um cenário incluído</translation>
    </message>
    <message id="ID_Engine_Scenario_Levels">
        <source></source>
        <translation>deve ser [milissegundos, nível]: crescentes a partir de 0, e um nível de 0 a 1</translation>
    </message>
    <message id="ID_Engine_Scenario_NoDevice">
        <source></source>
        <translation>não indica nenhum %1 deste cenário</translation>
    </message>
    <message id="ID_Engine_Scenario_NoVolume">
        <source></source>
        <translation>uma câmera não tem volume</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRead">
        <source></source>
        <translation>não pode ser lido: %1</translation>
    </message>
    <message id="ID_Engine_Scenario_NotRegular">
        <source></source>
        <translation>não é um arquivo comum; indique um arquivo de cenário</translation>
    </message>
    <message id="ID_Engine_Scenario_SameId">
        <source></source>
        <translation>deve ser único em sua lista</translation>
    </message>
    <message id="ID_Engine_Scenario_TooLarge">
        <source></source>
        <translation>passa de 1 MiB; indique um arquivo de cenário</translation>
    </message>
    <message id="ID_Engine_Scenario_TooManyDevices">
        <source></source>
        <translation>mais de %1 dispositivos diferentes deste tipo; conecte um que já esteve presente</translation>
    </message>
    <message id="ID_Engine_Scenario_Unknown">
        <source></source>
        <translation>não há arquivo nem cenário incluído com este nome (há %1)</translation>
    </message>
    <message id="ID_Engine_SoundNotBuilt">
        <source></source>
        <translation>Sem som: sistema sem suporte</translation>
    </message>
    <message id="ID_Engine_SoundServerLost">
        <source></source>
        <translation>O serviço de som não está em execução</translation>
    </message>
    <message id="ID_Engine_SoundServerSilent">
        <source></source>
        <translation>O serviço de som não responde</translation>
    </message>
    <message id="ID_Engine_TelephoneQuality">
        <source></source>
        <translation>%1 (qualidade de telefone)</translation>
    </message>
    <message id="ID_HeadsetPage_2">
        <source></source>
        <translation>2. Aumente o volume e veja se o som não está silenciado.</translation>
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
        <translation>Clique em “Tocar”, ouça e escolha o som que você ouve.</translation>
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
        <translation>Alterações</translation>
    </message>
    <message id="ID_Host_Changes_None">
        <source></source>
        <translation>Nada mudou desde então.</translation>
    </message>
    <message id="ID_Host_Check_Loop">
        <source></source>
        <translation>Circuito acústico</translation>
    </message>
    <message id="ID_Host_Config_BadLine">
        <source></source>
        <translation>%1: cada linha deve ser KEY=VALUE, como server=HOST, ou um comentário após ponto e vírgula; corrija-a ali</translation>
    </message>
    <message id="ID_Host_Config_BadValue">
        <source></source>
        <translation>%1: %2=%3: o valor deve ser %4; corrija-o ali</translation>
    </message>
    <message id="ID_Host_Config_BadVariable">
        <source></source>
        <translation>%1=%2: o valor deve ser %3</translation>
    </message>
    <message id="ID_Host_Config_UnknownKey">
        <source></source>
        <translation>%1: chave desconhecida %2; as chaves são server, report-url e report-token-file</translation>
    </message>
    <message id="ID_Host_Config_Unreadable">
        <source></source>
        <translation>%1: não pode ser lido como arquivo de configuração; coloque ali um arquivo de texto com linhas como server=HOST ou remova-o</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerLost">
        <source></source>
        <translation>O serviço de câmera não está em execução</translation>
    </message>
    <message id="ID_Host_Devices_CameraServerSilent">
        <source></source>
        <translation>O serviço de câmera não responde</translation>
    </message>
    <message id="ID_Host_Devices_Cameras">
        <source></source>
        <translation>Câmeras</translation>
    </message>
    <message id="ID_Host_Devices_Microphones">
        <source></source>
        <translation>Microfones</translation>
    </message>
    <message id="ID_Host_Devices_None">
        <source></source>
        <translation>nada encontrado</translation>
    </message>
    <message id="ID_Host_Devices_NotBuilt">
        <source></source>
        <translation>este programa foi compilado sem os dispositivos reais (ENVCHECK_DEVICES): use --platform scripted</translation>
    </message>
    <message id="ID_Host_Devices_Speakers">
        <source></source>
        <translation>Alto-falantes</translation>
    </message>
    <message id="ID_Host_Display_Gone">
        <source></source>
        <translation>a tela desapareceu, e a verificação com ela: o servidor X ou o compositor Wayland terminou; inicie a verificação de novo</translation>
    </message>
    <message id="ID_Host_Display_None">
        <source></source>
        <translation>não há tela em que abrir a verificação: inicie-a em uma sessão da área de trabalho ou com xvfb-run</translation>
    </message>
    <message id="ID_Host_Display_NotOpened">
        <source></source>
        <translation>não é possível abrir a tela %1: inicie a verificação em uma sessão da área de trabalho ou com xvfb-run</translation>
    </message>
    <message id="ID_Host_Exit_AllPassed">
        <source></source>
        <translation>tudo aprovado</translation>
    </message>
    <message id="ID_Host_Exit_BadInput">
        <source></source>
        <translation>um arquivo indicado não pode ser usado</translation>
    </message>
    <message id="ID_Host_Exit_CannotWrite">
        <source></source>
        <translation>não é possível gravar um arquivo ou uma pasta</translation>
    </message>
    <message id="ID_Host_Exit_LeftEarly">
        <source></source>
        <translation>o usuário saiu antes do fim</translation>
    </message>
    <message id="ID_Host_Exit_PutOut">
        <source></source>
        <translation>a sala encerrou a sessão</translation>
    </message>
    <message id="ID_Host_Exit_SomeFailed">
        <source></source>
        <translation>algum teste falhou</translation>
    </message>
    <message id="ID_Host_Exit_TourProblems">
        <source></source>
        <translation>o percurso encontrou um defeito</translation>
    </message>
    <message id="ID_Host_Exit_Unavailable">
        <source></source>
        <translation>falta uma tela, uma porta ou um servidor</translation>
    </message>
    <message id="ID_Host_Exit_WrongUsage">
        <source></source>
        <translation>uso incorreto: a mensagem indica a opção</translation>
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
    <message id="ID_Host_Figure_Level">
        <source></source>
        <translation>Nível</translation>
    </message>
    <message id="ID_Host_Figure_LoopDelay">
        <source></source>
        <translation>Atraso do alto-falante ao microfone</translation>
    </message>
    <message id="ID_Host_Figure_LoopLevel">
        <source></source>
        <translation>Nível no microfone</translation>
    </message>
    <message id="ID_Host_Figure_Loss">
        <source></source>
        <translation>Perda de pacotes</translation>
    </message>
    <message id="ID_Host_Figure_Modes">
        <source></source>
        <translation>Modos da câmera</translation>
    </message>
    <message id="ID_Host_Figure_MovedByUser">
        <source></source>
        <translation>Volume alterado pelo usuário</translation>
    </message>
    <message id="ID_Host_Figure_MutedAfter">
        <source></source>
        <translation>Silenciado depois</translation>
    </message>
    <message id="ID_Host_Figure_MutedBefore">
        <source></source>
        <translation>Silenciado antes</translation>
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
    <message id="ID_Host_Figure_Program">
        <source></source>
        <translation>Em uso por</translation>
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
    <message id="ID_Host_File_IsFolder">
        <source></source>
        <translation>é uma pasta; indique um arquivo dentro dela</translation>
    </message>
    <message id="ID_Host_File_NameOther">
        <source></source>
        <translation>%1; indique outro arquivo</translation>
    </message>
    <message id="ID_Host_File_NoFolder">
        <source></source>
        <translation>a pasta %1 não existe; crie-a ou indique outro arquivo</translation>
    </message>
    <message id="ID_Host_File_NoObject">
        <source></source>
        <translation>o documento não é um objeto</translation>
    </message>
    <message id="ID_Host_File_NoReport">
        <source></source>
        <translation>%1 não é um relatório em JSON (%2); indique um que uma verificação gravou</translation>
    </message>
    <message id="ID_Host_File_NoRight">
        <source></source>
        <translation>você não tem permissão para gravar ali; indique outro arquivo</translation>
    </message>
    <message id="ID_Host_File_NotOrdinary">
        <source></source>
        <translation>não é um arquivo comum; indique outro</translation>
    </message>
    <message id="ID_Host_File_NotRead">
        <source></source>
        <translation>não é possível ler %1: %2; indique um relatório que uma verificação gravou</translation>
    </message>
    <message id="ID_Host_File_NotWritten">
        <source></source>
        <translation>não é possível gravar %1: %2</translation>
    </message>
    <message id="ID_Host_File_TooLarge">
        <source></source>
        <translation>é grande demais</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodPicture">
        <source></source>
        <translation>A resposta foi “não”, mas chegavam imagens em movimento.</translation>
    </message>
    <message id="ID_Host_Flag_NoToGoodSound">
        <source></source>
        <translation>A resposta foi “não”, mas o microfone captava som.</translation>
    </message>
    <message id="ID_Host_Flag_NoToRightSound">
        <source></source>
        <translation>A resposta foi “não”, mas o som certo foi escolhido.</translation>
    </message>
    <message id="ID_Host_Flag_YesToBlackPicture">
        <source></source>
        <translation>A resposta foi “sim” diante de uma imagem preta.</translation>
    </message>
    <message id="ID_Host_Flag_YesToFrozenPicture">
        <source></source>
        <translation>A resposta foi “sim” diante de uma imagem congelada.</translation>
    </message>
    <message id="ID_Host_Flag_YesToMutedSpeaker">
        <source></source>
        <translation>A resposta foi “sim” com o alto-falante silenciado.</translation>
    </message>
    <message id="ID_Host_Flag_YesToSilence">
        <source></source>
        <translation>A resposta foi “sim”, mas o microfone não captou nada.</translation>
    </message>
    <message id="ID_Host_Flag_YesToWrongSound">
        <source></source>
        <translation>A resposta foi “sim”, mas o som certo não foi escolhido.</translation>
    </message>
    <message id="ID_Host_Flag_YesWithoutPictures">
        <source></source>
        <translation>A resposta foi “sim”, mas não chegavam imagens.</translation>
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
    <message id="ID_Host_Help_Arguments">
        <source></source>
        <translation>Argumentos:</translation>
    </message>
    <message id="ID_Host_Help_Check">
        <source></source>
        <translation>Verifica a rede, a câmera, o alto-falante e o microfone antes de uma aula on-line.</translation>
    </message>
    <message id="ID_Host_Help_Commands">
        <source></source>
        <translation>Comandos:</translation>
    </message>
    <message id="ID_Host_Help_Devices">
        <source></source>
        <translation>Mostra as câmeras, os microfones e os alto-falantes com o estado de cada um. Código de saída 0: as listas estão completas, mesmo que nada tenha sido encontrado; 69: o serviço de câmera ou de som não está em execução ou não responde.</translation>
    </message>
    <message id="ID_Host_Help_ExitCodes">
        <source></source>
        <translation>Códigos de saída:</translation>
    </message>
    <message id="ID_Host_Help_File">
        <source></source>
        <translation>Um relatório que uma verificação gravou; - é a entrada padrão. Sem ele: o relatório da última verificação.</translation>
    </message>
    <message id="ID_Host_Help_History">
        <source></source>
        <translation>Lista as verificações anteriores com seus resultados e relatórios.</translation>
    </message>
    <message id="ID_Host_Help_Network">
        <source></source>
        <translation>Mede o atraso e a perda de pacotes e mostra os valores à medida que chegam.</translation>
    </message>
    <message id="ID_Host_Help_NoCommand">
        <source></source>
        <translation>Sem comando, a verificação é aberta. Cada comando tem sua própria ajuda (--help).</translation>
    </message>
    <message id="ID_Host_Help_Options">
        <source></source>
        <translation>Opções:</translation>
    </message>
    <message id="ID_Host_Help_Report">
        <source></source>
        <translation>Mostra relatórios de verificações anteriores como texto, HTML ou JSON, ou vários em uma tabela.</translation>
    </message>
    <message id="ID_Host_Help_Serve">
        <source></source>
        <translation>Responde às medições de outros computadores, como um pequeno servidor STUN, até ser interrompido.</translation>
    </message>
    <message id="ID_Host_Help_Usage">
        <source></source>
        <translation>Uso: %1</translation>
    </message>
    <message id="ID_Host_Help_UsageOptions">
        <source></source>
        <translation>[opções]</translation>
    </message>
    <message id="ID_Host_History_NoReport">
        <source></source>
        <translation>ainda não há relatório de uma verificação; faça a verificação ou indique o arquivo (FILE) de um relatório</translation>
    </message>
    <message id="ID_Host_History_None">
        <source></source>
        <translation>Não há verificações anteriores.</translation>
    </message>
    <message id="ID_Host_Language_Unknown">
        <source></source>
        <translation>--language %1: não há textos neste idioma; indique um destes: %2</translation>
    </message>
    <message id="ID_Host_LastGoodRun">
        <source></source>
        <translation>Última verificação aprovada</translation>
    </message>
    <message id="ID_Host_LastGoodRun_None">
        <source></source>
        <translation>Não há verificação anterior em que tudo foi aprovado.</translation>
    </message>
    <message id="ID_Host_MeasuringFailed">
        <source></source>
        <translation>a medição falhou: %1</translation>
    </message>
    <message id="ID_Host_Network_Ends">
        <source></source>
        <translation>servidor %1, este computador %2</translation>
    </message>
    <message id="ID_Host_Network_Figures">
        <source></source>
        <translation>atraso %1 ms, variação %2 ms, perda %3%, sondas enviadas %4, respondidas %5: %6</translation>
    </message>
    <message id="ID_Host_Network_NameServer">
        <source></source>
        <translation>não medido: sem servidor; indique um com --server, com %1 ou em %2</translation>
    </message>
    <message id="ID_Host_Network_NoAnswer">
        <source></source>
        <translation>sem resposta, perda %1%, sondas enviadas %2, respondidas %3</translation>
    </message>
    <message id="ID_Host_Network_NoRoute">
        <source></source>
        <translation>sem rota até o servidor, perda %1 %, enviadas %2, respondidas %3</translation>
    </message>
    <message id="ID_Host_Network_NoSuchServer">
        <source></source>
        <translation>servidor inexistente, perda %1%, sondas enviadas %2, respondidas %3</translation>
    </message>
    <message id="ID_Host_Network_Refused">
        <source></source>
        <translation>o servidor recusa, perda %1 %, enviadas %2, respondidas %3</translation>
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
    <message id="ID_Host_Option_Account">
        <source></source>
        <translation>Conta a mostrar; por padrão, o usuário do sistema.</translation>
    </message>
    <message id="ID_Host_Option_Cdn">
        <source></source>
        <translation>CDN a mostrar.</translation>
    </message>
    <message id="ID_Host_Option_Count">
        <source></source>
        <translation>Termina depois de N valores; sem esta opção, continua até ser interrompido.</translation>
    </message>
    <message id="ID_Host_Option_Diagnose">
        <source></source>
        <translation>Mede como --unattended e reúne o relatório, os dispositivos, as versões e o registro em FILE.zip para quem procura a causa. Sem --redact, nomes e endereços ficam de fora.</translation>
    </message>
    <message id="ID_Host_Option_FilesFrom">
        <source></source>
        <translation>Lê também os nomes dos relatórios de FILE, um por linha; - é a entrada padrão.</translation>
    </message>
    <message id="ID_Host_Option_Format">
        <source></source>
        <translation>text (padrão), html ou json; para muitos relatórios room (uma tabela), map (uma página com um quadro para cada um), csv ou jsonl.</translation>
    </message>
    <message id="ID_Host_Option_Help">
        <source></source>
        <translation>Mostra esta ajuda.</translation>
    </message>
    <message id="ID_Host_Option_Json">
        <source></source>
        <translation>Mostra JSON em vez de uma tabela.</translation>
    </message>
    <message id="ID_Host_Option_Language">
        <source></source>
        <translation>Idioma dos textos, como en ou zh_CN; por padrão, o do sistema.</translation>
    </message>
    <message id="ID_Host_Option_Loop">
        <source></source>
        <translation>Com --unattended: toca também por um segundo um tom baixo e crescente no alto-falante escolhido e o procura no microfone escolhido. Isso faz barulho.</translation>
    </message>
    <message id="ID_Host_Option_Nickname">
        <source></source>
        <translation>Apelido a mostrar; por padrão, o usuário do sistema.</translation>
    </message>
    <message id="ID_Host_Option_Platform">
        <source></source>
        <translation>Dispositivos a verificar: devices (os deste computador, padrão) ou scripted (simulados).</translation>
    </message>
    <message id="ID_Host_Option_Port">
        <source></source>
        <translation>Porta UDP em que responder; 3478 por padrão, 0 usa uma livre.</translation>
    </message>
    <message id="ID_Host_Option_Quiet">
        <source></source>
        <translation>Não abrir uma janela com o resultado após uma verificação com falhas.</translation>
    </message>
    <message id="ID_Host_Option_Redact">
        <source></source>
        <translation>O que omitir: none (nada, padrão), personal (endereços, nomes e contas) ou hash (códigos curtos no lugar deles).</translation>
    </message>
    <message id="ID_Host_Option_Report">
        <source></source>
        <translation>Grava o relatório em FILE em vez do lugar padrão; a extensão (.json, .html ou .txt) define o formato, e - é a saída padrão, como JSON.</translation>
    </message>
    <message id="ID_Host_Option_ReportTokenFile">
        <source></source>
        <translation>Arquivo com o token que o servidor de relatórios pede. Só você, ou um grupo, pode lê-lo.</translation>
    </message>
    <message id="ID_Host_Option_ReportUrl">
        <source></source>
        <translation>Endereço para o qual enviar o relatório e seus códigos. Sem --redact, ele vai sem nomes e endereços.</translation>
    </message>
    <message id="ID_Host_Option_Results">
        <source></source>
        <translation>Grava também os resultados em FILE, como JSON, após cada mudança; - é a saída padrão, no fim.</translation>
    </message>
    <message id="ID_Host_Option_Scenario">
        <source></source>
        <translation>O que os dispositivos simulados fazem: um arquivo ou o nome de um cenário incluído, como all-well. Implica --platform scripted.</translation>
    </message>
    <message id="ID_Host_Option_Server">
        <source></source>
        <translation>Servidor STUN até o qual medir o atraso e a perda, também como stun:HOST:PORT. Sem porta, são consultados os registros DNS do domínio (_stun._udp); se não houver, a porta é 3478. ENVCHECK_SERVER ou um arquivo de configuração também pode indicá-lo. Sem servidor, a rede não é medida: este computador responde a si mesmo.</translation>
    </message>
    <message id="ID_Host_Option_Tour">
        <source></source>
        <translation>Percorre todas as etapas automaticamente e salva uma imagem de cada uma em FOLDER.</translation>
    </message>
    <message id="ID_Host_Option_Unattended">
        <source></source>
        <translation>Mede sem janela e sem uma pessoa; --json ARQUIVO (- para a saída padrão) grava o relatório. Códigos de saída: 0 funciona, 1 precisa de correção, 69 falta um serviço ou servidor.</translation>
    </message>
    <message id="ID_Host_Option_Verbose">
        <source></source>
        <translation>Grava também o log no terminal.</translation>
    </message>
    <message id="ID_Host_Option_Version">
        <source></source>
        <translation>Mostra a versão.</translation>
    </message>
    <message id="ID_Host_Outcome_BrokenOff">
        <source></source>
        <translation>Sem supervisão: encerrado antes de medir tudo</translation>
    </message>
    <message id="ID_Host_Outcome_Failed">
        <source></source>
        <translation>Concluída com problemas</translation>
    </message>
    <message id="ID_Host_Outcome_Faulty">
        <source></source>
        <translation>Sem supervisão: algo precisa de correção</translation>
    </message>
    <message id="ID_Host_Outcome_LeftEarly">
        <source></source>
        <translation>Encerrada antes do fim</translation>
    </message>
    <message id="ID_Host_Outcome_Passed">
        <source></source>
        <translation>Tudo aprovado</translation>
    </message>
    <message id="ID_Host_Outcome_PutOut">
        <source></source>
        <translation>A sala encerrou a sessão</translation>
    </message>
    <message id="ID_Host_Outcome_Unavailable">
        <source></source>
        <translation>Sem supervisão: falta um serviço, por isso nem tudo pôde ser medido</translation>
    </message>
    <message id="ID_Host_Outcome_Works">
        <source></source>
        <translation>Sem supervisão: tudo o que foi medido funciona</translation>
    </message>
    <message id="ID_Host_OutputNotWritten">
        <source></source>
        <translation>não é possível gravar a saída; veja se o disco está cheio</translation>
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
    <message id="ID_Host_Reason_Muted">
        <source></source>
        <translation>o dispositivo está mudo</translation>
    </message>
    <message id="ID_Host_Reason_NoAnswer">
        <source></source>
        <translation>o servidor não responde</translation>
    </message>
    <message id="ID_Host_Reason_NoRoute">
        <source></source>
        <translation>não há rota até o servidor</translation>
    </message>
    <message id="ID_Host_Reason_NotBuilt">
        <source></source>
        <translation>sem suporte neste sistema</translation>
    </message>
    <message id="ID_Host_Reason_NotOffered">
        <source></source>
        <translation>este mecanismo não consegue fazer isso</translation>
    </message>
    <message id="ID_Host_Reason_NotRecorded">
        <source></source>
        <translation>o mecanismo não registra isso</translation>
    </message>
    <message id="ID_Host_Reason_Off">
        <source></source>
        <translation>o dispositivo está desligado</translation>
    </message>
    <message id="ID_Host_Reason_Refused">
        <source></source>
        <translation>o servidor recusou</translation>
    </message>
    <message id="ID_Host_Reason_Scripted">
        <source></source>
        <translation>um dispositivo simulado não tem este valor</translation>
    </message>
    <message id="ID_Host_Reason_ServerLost">
        <source></source>
        <translation>o serviço de som não está em execução</translation>
    </message>
    <message id="ID_Host_Reason_ServerSilent">
        <source></source>
        <translation>o serviço de som não responde</translation>
    </message>
    <message id="ID_Host_Reason_Silent">
        <source></source>
        <translation>nada veio do dispositivo</translation>
    </message>
    <message id="ID_Host_Reason_StepNotOpened">
        <source></source>
        <translation>esta etapa não foi aberta</translation>
    </message>
    <message id="ID_Host_Reason_Unreadable">
        <source></source>
        <translation>a câmera não envia nenhum formato que possa ser exibido</translation>
    </message>
    <message id="ID_Host_Reason_VolumeZero">
        <source></source>
        <translation>o volume está em 0</translation>
    </message>
    <message id="ID_Host_Redacted_Hash">
        <source></source>
        <translation>Endereços, nomes e contas foram trocados por códigos curtos.</translation>
    </message>
    <message id="ID_Host_Redacted_Personal">
        <source></source>
        <translation>Endereços, nomes e contas foram omitidos.</translation>
    </message>
    <message id="ID_Host_Remedy_Clipping">
        <source></source>
        <translation>O microfone está alto demais e distorce: diminua o volume dele.</translation>
    </message>
    <message id="ID_Host_Remedy_Hum">
        <source></source>
        <translation>O microfone tem zumbido: tente outra entrada ou outro cabo e afaste-o de fontes de alimentação.</translation>
    </message>
    <message id="ID_Host_Remedy_LoopNotHeard">
        <source></source>
        <translation>O microfone não ouviu o alto-falante: aumente o volume dos dois e verifique se pertencem ao mesmo headset ou estão na mesma sala.</translation>
    </message>
    <message id="ID_Host_Remedy_ServerSilent">
        <source></source>
        <translation>O serviço de imagem e som do sistema não respondeu: saia da sessão e entre de novo, ou reinicie o computador.</translation>
    </message>
    <message id="ID_Host_ReportIsIn">
        <source></source>
        <translation>O relatório está em %1</translation>
    </message>
    <message id="ID_Host_Report_Answer">
        <source></source>
        <translation>Resposta</translation>
    </message>
    <message id="ID_Host_Report_BadTime">
        <source></source>
        <translation>deve ser uma data como 2026-03-01T08:30:00Z</translation>
    </message>
    <message id="ID_Host_Report_Causes">
        <source></source>
        <translation>Causas</translation>
    </message>
    <message id="ID_Host_Report_Computer">
        <source></source>
        <translation>Computador</translation>
    </message>
    <message id="ID_Host_Report_Contradiction">
        <source></source>
        <translation>Contradição</translation>
    </message>
    <message id="ID_Host_Report_Count">
        <source></source>
        <translation>Relatórios</translation>
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
    <message id="ID_Host_Report_OtherFormat">
        <source></source>
        <translation>isto não é um relatório da verificação</translation>
    </message>
    <message id="ID_Host_Report_OtherVersion">
        <source></source>
        <translation>é %1, e este programa lê a versão %2</translation>
    </message>
    <message id="ID_Host_Report_Outcome">
        <source></source>
        <translation>Resultado geral</translation>
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
        <translation>Os dispositivos eram simulados, não os deste computador.</translation>
    </message>
    <message id="ID_Host_Report_Summary">
        <source></source>
        <translation>Resumo</translation>
    </message>
    <message id="ID_Host_Report_System">
        <source></source>
        <translation>Computador e conta</translation>
    </message>
    <message id="ID_Host_Report_Time">
        <source></source>
        <translation>Data e hora</translation>
    </message>
    <message id="ID_Host_Report_Title">
        <source></source>
        <translation>Relatório da verificação do sistema</translation>
    </message>
    <message id="ID_Host_Serve_Answering">
        <source></source>
        <translation>Respondendo na porta UDP %1. Outros computadores medem o caminho até aqui com --server stun:HOST:%1</translation>
    </message>
    <message id="ID_Host_Serve_NoPort">
        <source></source>
        <translation>não é possível responder na porta UDP %1: %2. Escolha outra com --port</translation>
    </message>
    <message id="ID_Host_Serve_NotBuilt">
        <source></source>
        <translation>serve precisa de um programa compilado com os dispositivos reais (ENVCHECK_DEVICES)</translation>
    </message>
    <message id="ID_Host_State_Absent">
        <source></source>
        <translation>não conectado</translation>
    </message>
    <message id="ID_Host_State_Busy">
        <source></source>
        <translation>em uso</translation>
    </message>
    <message id="ID_Host_State_Denied">
        <source></source>
        <translation>acesso negado</translation>
    </message>
    <message id="ID_Host_State_Failed">
        <source></source>
        <translation>com falha</translation>
    </message>
    <message id="ID_Host_State_Hung">
        <source></source>
        <translation>não responde</translation>
    </message>
    <message id="ID_Host_State_Off">
        <source></source>
        <translation>desligado</translation>
    </message>
    <message id="ID_Host_State_Ready">
        <source></source>
        <translation>pronto</translation>
    </message>
    <message id="ID_Host_State_Silent">
        <source></source>
        <translation>sem sinal</translation>
    </message>
    <message id="ID_Host_State_Working">
        <source></source>
        <translation>funciona</translation>
    </message>
    <message id="ID_Host_Takes_Ending">
        <source></source>
        <translation>um nome que termine em %1, ou - para a saída padrão</translation>
    </message>
    <message id="ID_Host_Takes_FileEnding">
        <source></source>
        <translation>um nome de arquivo que termine em %1</translation>
    </message>
    <message id="ID_Host_Takes_Number">
        <source></source>
        <translation>um número de %1 a %2</translation>
    </message>
    <message id="ID_Host_Takes_OneOf">
        <source></source>
        <translation>um destes valores: %1</translation>
    </message>
    <message id="ID_Host_Takes_Server">
        <source></source>
        <translation>HOST ou HOST:PORT, com ou sem stun: na frente, como stun:stun.example.org:3478</translation>
    </message>
    <message id="ID_Host_Takes_WebAddress">
        <source></source>
        <translation>um endereço http ou https</translation>
    </message>
    <message id="ID_Host_Token_NoToken">
        <source></source>
        <translation>%1: isto não é um token; ele é uma linha de letras, dígitos e - . _ ~ + /, com = no fim</translation>
    </message>
    <message id="ID_Host_Token_NotEncrypted">
        <source></source>
        <translation>%1: um token só é enviado por https; use um endereço https ou nenhum token</translation>
    </message>
    <message id="ID_Host_Token_NotRead">
        <source></source>
        <translation>não é possível ler %1: %2; indique um arquivo com o token do servidor de relatórios</translation>
    </message>
    <message id="ID_Host_Token_Open">
        <source></source>
        <translation>%1 contém um token, e qualquer usuário pode ler ou gravar o arquivo; mude isso com: chmod o= %1</translation>
    </message>
    <message id="ID_Host_Tour_Done">
        <source></source>
        <translation>%1 imagens estão em %2; index.html mostra todas.</translation>
    </message>
    <message id="ID_Host_Tour_NoFolder">
        <source></source>
        <translation>--tour %1: não é possível criar esta pasta; indique outra</translation>
    </message>
    <message id="ID_Host_Tour_NotWritten">
        <source></source>
        <translation>%1: %2; indique outra pasta</translation>
    </message>
    <message id="ID_Host_Upload_Kept">
        <source></source>
        <translation>O relatório não chegou a %1: %2. Ele fica guardado, e a próxima execução o envia de novo.</translation>
    </message>
    <message id="ID_Host_Upload_NoAnswer">
        <source></source>
        <translation>sem resposta a tempo</translation>
    </message>
    <message id="ID_Host_Upload_Refused">
        <source></source>
        <translation>%1 não aceita o relatório: %2. Ele não será enviado de novo.</translation>
    </message>
    <message id="ID_Host_Upload_Sending">
        <source></source>
        <translation>Enviando o relatório para %1 …</translation>
    </message>
    <message id="ID_Host_Upload_WrongToken">
        <source></source>
        <translation>o token falta ou está errado (HTTP %1)</translation>
    </message>
    <message id="ID_Host_Usage_EmptyName">
        <source></source>
        <translation>--%1 precisa de um nome que não seja vazio</translation>
    </message>
    <message id="ID_Host_Usage_ExtraArgument">
        <source></source>
        <translation>o argumento “%1” está sobrando: veja --help</translation>
    </message>
    <message id="ID_Host_Usage_LeaveOneOut">
        <source></source>
        <translation>%1 não combina com %2: retire uma das duas</translation>
    </message>
    <message id="ID_Host_Usage_Needs">
        <source></source>
        <translation>--%1 precisa de --%2: adicione-o ou retire --%1</translation>
    </message>
    <message id="ID_Host_Usage_OtherCommand">
        <source></source>
        <translation>--%1 não combina com %2: veja --help</translation>
    </message>
    <message id="ID_Host_Usage_SamePlace">
        <source></source>
        <translation>--%1 e --%2 gravariam no mesmo lugar (%3): indique dois diferentes</translation>
    </message>
    <message id="ID_Host_Usage_SeeHelp">
        <source></source>
        <translation>%1 Veja --help.</translation>
    </message>
    <message id="ID_Host_Usage_Takes">
        <source></source>
        <translation>--%1 %2: espera-se %3</translation>
    </message>
    <message id="ID_Host_Usage_TheCheck">
        <source></source>
        <translation>a verificação</translation>
    </message>
    <message id="ID_Host_Usage_UnknownCommand">
        <source></source>
        <translation>comando desconhecido “%1”: veja --help</translation>
    </message>
    <message id="ID_Host_Verdict_Faulty">
        <source></source>
        <translation>Precisa de correção</translation>
    </message>
    <message id="ID_Host_Verdict_Heard">
        <source></source>
        <translation>Ouvido</translation>
    </message>
    <message id="ID_Host_Verdict_NotHeard">
        <source></source>
        <translation>Não ouvido</translation>
    </message>
    <message id="ID_Host_Verdict_NotTried">
        <source></source>
        <translation>Não tentado</translation>
    </message>
    <message id="ID_Host_Verdict_Unmeasured">
        <source></source>
        <translation>Não medido</translation>
    </message>
    <message id="ID_Host_Verdict_Works">
        <source></source>
        <translation>Funciona</translation>
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
        <translation>2. Ative o microfone: procure um botão ou tecla de silenciar.</translation>
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
        <translation>Iniciar a verificação</translation>
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
    <message id="ID_Host_Remedy_NotBuilt">
        <source></source>
        <translation>Este programa não pode usar esses dispositivos neste sistema, então teste o seu em outro programa.</translation>
    </message>
    <message id="ID_Host_Remedy_ServerLost">
        <source></source>
        <translation>O serviço de imagem e som do sistema parou: saia da sessão e entre de novo, ou reinicie o computador.</translation>
    </message>
    <message id="ID_Host_Remedy_Failed">
        <source></source>
        <translation>O dispositivo falhou: conecte-o de novo ou tente outro.</translation>
    </message>
    <message id="ID_Host_Remedy_Unreadable">
        <source></source>
        <translation>A câmera não envia nenhum formato que possa ser exibido aqui: escolha outra câmera ou outro formato nas configurações dela.</translation>
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
