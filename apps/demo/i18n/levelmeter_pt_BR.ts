<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>ControlButtons</name>
    <message>
        <source>Autosave: on</source>
        <translation>Salvamento automático: sim</translation>
    </message>
    <message>
        <source>Autosave: off</source>
        <translation>Salvamento automático: não</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
</context>
<context>
    <name>EventList</name>
    <message>
        <source>Events</source>
        <translation>Eventos</translation>
    </message>
</context>
<context>
    <name>Framework</name>
    <message>
        <source>The level meter runs alone: there is no other application.</source>
        <translation>O medidor de nível está sozinho: não há outro aplicativo.</translation>
    </message>
    <message>
        <source>A run is under way. Stop it and close?</source>
        <translation>Há uma medição em andamento. Parar e fechar?</translation>
    </message>
    <message>
        <source>The last result was not saved. Close all the same?</source>
        <translation>O último resultado não foi salvo. Fechar mesmo assim?</translation>
    </message>
    <message>
        <source>Close the level meter</source>
        <translation>Fechar o medidor de nível</translation>
    </message>
</context>
<context>
    <name>LinkPanel</name>
    <message>
        <source>Link up</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Link slow</source>
        <translation>Conexão lenta</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Conectando</translation>
    </message>
    <message>
        <source>Link lost</source>
        <translation>Conexão perdida</translation>
    </message>
    <message>
        <source>No link</source>
        <translation>Sem conexão</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Conexão</translation>
    </message>
    <message>
        <source>Try again now</source>
        <translation>Tentar novamente agora</translation>
    </message>
</context>
<context>
    <name>LogPanel</name>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>The log is not kept in a file.</source>
        <translation>O registro não é guardado em arquivo.</translation>
    </message>
    <message>
        <source>The log is kept in %1</source>
        <translation>O registro está em %1</translation>
    </message>
</context>
<context>
    <name>Meter</name>
    <message>
        <source>The instrument does not say whether its test has ended.</source>
        <translation>O instrumento não informa se o teste terminou.</translation>
    </message>
    <message>
        <source>Stopped without a link; the instrument&apos;s test is ended when the link is back.</source>
        <translation>Parado sem conexão; o teste do instrumento será encerrado quando a conexão voltar.</translation>
    </message>
    <message>
        <source>The instrument refused to launch its test &quot;%1&quot;.</source>
        <translation>O instrumento recusou iniciar o teste &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The link was lost before the test ran: %1</source>
        <translation>Conexão perdida antes do início do teste: %1</translation>
    </message>
    <message>
        <source>Link lost: %1</source>
        <translation>Conexão perdida: %1</translation>
    </message>
    <message>
        <source>The link was lost while the test ended.</source>
        <translation>A conexão foi perdida enquanto o teste terminava.</translation>
    </message>
    <message>
        <source>The instrument&apos;s test runs.</source>
        <translation>O teste do instrumento está em execução.</translation>
    </message>
    <message>
        <source>The link is back, the run goes on.</source>
        <translation>A conexão voltou, a medição continua.</translation>
    </message>
    <message>
        <source>Level below the threshold: %1 dBm</source>
        <translation>Nível abaixo do limiar: %1 dBm</translation>
    </message>
    <message>
        <source>Level back above the threshold</source>
        <translation>Nível novamente acima do limiar</translation>
    </message>
    <message>
        <source>The test ended before it ran.</source>
        <translation>O teste terminou antes de ser executado.</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Parado</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>The link is back, but the instrument&apos;s test has ended.</source>
        <translation>A conexão voltou, mas o teste do instrumento terminou.</translation>
    </message>
    <message>
        <source>The instrument has ended its test before the time was over.</source>
        <translation>O instrumento encerrou o teste antes do tempo.</translation>
    </message>
</context>
<context>
    <name>MeterWindow</name>
    <message>
        <source>Measuring</source>
        <translation>Medindo</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Level meter</source>
        <translation>Medidor de nível</translation>
    </message>
</context>
<context>
    <name>PlotPanel</name>
    <message>
        <source>Zoom in</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Reduzir</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>No markers</source>
        <translation>Sem marcas</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>Marcas</translation>
    </message>
    <message>
        <source>Tap the trace to set a marker.</source>
        <translation>Toque na curva para pôr uma marca.</translation>
    </message>
</context>
<context>
    <name>ResultFiles</name>
    <message>
        <source>Save the result</source>
        <translation>Salvar o resultado</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Salvo como %1</translation>
    </message>
    <message>
        <source>Result File Browser</source>
        <translation>Arquivos de resultados</translation>
    </message>
    <message>
        <source>%1 is on the instrument now</source>
        <translation>%1 está agora no instrumento</translation>
    </message>
    <message>
        <source>%1 did not get to the instrument: %2</source>
        <translation>%1 não chegou ao instrumento: %2</translation>
    </message>
    <message>
        <source>Files of the instrument</source>
        <translation>Arquivos do instrumento</translation>
    </message>
    <message>
        <source>Delete %1? It can&apos;t be brought back.</source>
        <translation>Excluir %1? Não será possível recuperar.</translation>
    </message>
    <message>
        <source>Delete a result</source>
        <translation>Excluir um resultado</translation>
    </message>
    <message>
        <source>%1 can&apos;t be deleted.</source>
        <translation>Não é possível excluir %1.</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Choose a result at the left.</source>
        <translation>Escolha um resultado à esquerda.</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Medido</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Término</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>Nível mínimo</translation>
    </message>
    <message>
        <source>Highest level</source>
        <translation>Nível máximo</translation>
    </message>
    <message>
        <source>Mean power</source>
        <translation>Potência média</translation>
    </message>
    <message>
        <source>Bit errors</source>
        <translation>Erros de bit</translation>
    </message>
    <message>
        <source>Error ratio</source>
        <translation>Taxa de erro</translation>
    </message>
    <message>
        <source>Lowest level allowed</source>
        <translation>Nível mínimo permitido</translation>
    </message>
    <message>
        <source>Error ratio allowed</source>
        <translation>Taxa de erro permitida</translation>
    </message>
    <message>
        <source>Optical frequency</source>
        <translation>Frequência óptica</translation>
    </message>
    <message>
        <source>%1 THz</source>
        <translation>%1 THz</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Taxa de bits</translation>
    </message>
    <message>
        <source>%1 Gbit/s</source>
        <translation>%1 Gbit/s</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Instrumento</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>Portas</translation>
    </message>
    <message>
        <source>Saved results</source>
        <translation>Resultados salvos</translation>
    </message>
    <message>
        <source>Nothing was saved yet. A run that is over is saved in the test window.</source>
        <translation>Nada foi salvo ainda. Uma medição concluída é salva na janela de teste.</translation>
    </message>
    <message>
        <source>Figures of the result</source>
        <translation>Valores do resultado</translation>
    </message>
    <message>
        <source>Open another file</source>
        <translation>Abrir outro arquivo</translation>
    </message>
    <message>
        <source>Upload to instrument</source>
        <translation>Enviar ao instrumento</translation>
    </message>
    <message>
        <source>Progress of the upload</source>
        <translation>Progresso do envio</translation>
    </message>
    <message>
        <source>Files of instrument</source>
        <translation>Arquivos do instrumento</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
</context>
<context>
    <name>RunFile</name>
    <message>
        <source>%1 can&apos;t be written: %2</source>
        <translation>Não é possível gravar %1: %2</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>Não é possível ler %1: %2</translation>
    </message>
    <message>
        <source>%1 is larger than %2 MiB.</source>
        <translation>%1 é maior que %2 MiB.</translation>
    </message>
    <message>
        <source>%1 is no run of the level meter: %2</source>
        <translation>%1 não é uma medição do medidor de nível: %2</translation>
    </message>
</context>
<context>
    <name>RunReader</name>
    <message>
        <source>it does not begin as XML does</source>
        <translation>não começa como XML</translation>
    </message>
    <message>
        <source>a tag in it is too long</source>
        <translation>contém uma tag longa demais</translation>
    </message>
    <message>
        <source>another application has written it</source>
        <translation>foi gravado por outro aplicativo</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>linha %1: %2</translation>
    </message>
    <message>
        <source>it has no document type VEX</source>
        <translation>não tem o tipo de documento VEX</translation>
    </message>
    <message>
        <source>it declares entities</source>
        <translation>declara entidades</translation>
    </message>
    <message>
        <source>line %1: unknown element %2</source>
        <translation>linha %1: elemento desconhecido %2</translation>
    </message>
    <message>
        <source>its settings come after its samples</source>
        <translation>os ajustes vêm depois das amostras</translation>
    </message>
    <message>
        <source>it has too many events</source>
        <translation>tem eventos demais</translation>
    </message>
    <message>
        <source>it has too many samples</source>
        <translation>tem amostras demais</translation>
    </message>
    <message>
        <source>line %1: the samples are not in order</source>
        <translation>linha %1: as amostras não estão em ordem</translation>
    </message>
    <message>
        <source>line %1: expected a number from %2 to %3, found &apos;%4&apos;</source>
        <translation>linha %1: esperado um número de %2 a %3, encontrado &apos;%4&apos;</translation>
    </message>
</context>
<context>
    <name>SetupPage</name>
    <message>
        <source>Test at the instrument</source>
        <translation>Teste do instrumento</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>What is measured, and its limits</source>
        <translation>Medição e limites</translation>
    </message>
    <message>
        <source>Pattern that is sent, 32 bits</source>
        <translation>Padrão enviado, 32 bits</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>Hexadecimal</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Binário</translation>
    </message>
    <message>
        <source>PAM4 symbols</source>
        <translation>Símbolos PAM4</translation>
    </message>
    <message>
        <source>The three fields show the same pattern: each follows the others.</source>
        <translation>Os três campos mostram o mesmo padrão: cada um segue os outros.</translation>
    </message>
    <message>
        <source>A run is under way. It can be stopped in the test window.</source>
        <translation>Há uma medição em andamento. Ela pode ser parada na janela de teste.</translation>
    </message>
    <message>
        <source>Light colours</source>
        <translation>Cores claras</translation>
    </message>
    <message>
        <source>Dark colours</source>
        <translation>Cores escuras</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Standard values</source>
        <translation>Valores padrão</translation>
    </message>
    <message>
        <source>Start the test</source>
        <translation>Iniciar teste</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 em %2</translation>
    </message>
    <message>
        <source>Optical frequency</source>
        <translation>Frequência óptica</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Taxa de bits</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>Nível mínimo</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Samples per second</source>
        <translation>Amostras por segundo</translation>
    </message>
    <message>
        <source>Error ratio limit, power of 10</source>
        <translation>Limite de erro, potência de 10</translation>
    </message>
</context>
<context>
    <name>TestPage</name>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Salvo</translation>
    </message>
    <message>
        <source>Save result</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>The instrument launches its test &quot;%1&quot; ...</source>
        <translation>O instrumento inicia o teste &quot;%1&quot; ...</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>Medindo</translation>
    </message>
    <message>
        <source>The link is lost. The run goes on when it is back.</source>
        <translation>A conexão foi perdida. A medição continua quando ela voltar.</translation>
    </message>
    <message>
        <source>The instrument ends its test ...</source>
        <translation>O instrumento encerra o teste ...</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>No link to the instrument, so no test can be started.</source>
        <translation>Sem conexão com o instrumento, nenhum teste pode ser iniciado.</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>Interrompido</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Em execução</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Level now</source>
        <translation>Nível atual</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>Nível mínimo</translation>
    </message>
    <message>
        <source>Mean power</source>
        <translation>Potência média</translation>
    </message>
    <message>
        <source>Bit errors</source>
        <translation>Erros de bit</translation>
    </message>
    <message>
        <source>Error ratio</source>
        <translation>Taxa de erro</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Progresso da medição</translation>
    </message>
</context>
<context>
    <name>TracePlot</name>
    <message>
        <source>Trace of the level over time</source>
        <translation>Curva do nível ao longo do tempo</translation>
    </message>
    <message>
        <source>Time in s</source>
        <translation>Tempo em s</translation>
    </message>
    <message>
        <source>Level in dBm</source>
        <translation>Nível em dBm</translation>
    </message>
    <message>
        <source>%1: %2 s, %3 dBm</source>
        <translation>%1: %2 s, %3 dBm</translation>
    </message>
    <message>
        <source>B - A: %1 s, %2 dB</source>
        <translation>B - A: %1 s, %2 dB</translation>
    </message>
    <message>
        <source>no link</source>
        <translation>sem conexão</translation>
    </message>
    <message>
        <source>Threshold %1 dBm</source>
        <translation>Limiar %1 dBm</translation>
    </message>
</context>
<context>
    <name>Wording</name>
    <message>
        <source>PASS</source>
        <translation>PASSA</translation>
    </message>
    <message>
        <source>FAIL</source>
        <translation>FALHA</translation>
    </message>
    <message>
        <source>No verdict</source>
        <translation>Sem veredito</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Parado</translation>
    </message>
    <message>
        <source>Ended by the instrument</source>
        <translation>Encerrado pelo instrumento</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>Não iniciado</translation>
    </message>
    <message>
        <source>The instrument did not answer in time.</source>
        <translation>O instrumento não respondeu a tempo.</translation>
    </message>
    <message>
        <source>The connection broke.</source>
        <translation>A conexão se interrompeu.</translation>
    </message>
    <message>
        <source>Nothing answers at that address.</source>
        <translation>Nada responde nesse endereço.</translation>
    </message>
    <message>
        <source>The connection was closed.</source>
        <translation>A conexão foi fechada.</translation>
    </message>
    <message>
        <source>There is no instrument there.</source>
        <translation>Não há instrumento lá.</translation>
    </message>
</context>
</TS>
