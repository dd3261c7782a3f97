<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>AppHelpWidget</name>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Close help</source>
        <translation>Fechar ajuda</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>Página de ajuda</translation>
    </message>
</context>
<context>
    <name>AppMiniMissionControlWidget</name>
    <message>
        <source>Panel</source>
        <translation>Painel</translation>
    </message>
</context>
<context>
    <name>AppMissionControlWidget</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Port: %1</source>
        <translation>Porta: %1</translation>
    </message>
    <message>
        <source>Open mission control</source>
        <translation>Abrir painel de controle</translation>
    </message>
    <message>
        <source>Close mission control</source>
        <translation>Fechar painel de controle</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Close application</source>
        <translation>Fechar aplicativo</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>Application controls</source>
        <translation>Controles do aplicativo</translation>
    </message>
</context>
<context>
    <name>BreadcrumbBar</name>
    <message>
        <source>Path</source>
        <translation>Caminho</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Abrir %1</translation>
    </message>
</context>
<context>
    <name>ClientGUIBase</name>
    <message>
        <source>SETUP</source>
        <translation>CONFIGURAÇÃO</translation>
    </message>
    <message>
        <source>TEST</source>
        <translation>TESTE</translation>
    </message>
    <message>
        <source>RESULT</source>
        <translation>RESULTADO</translation>
    </message>
    <message>
        <source>Result File Browser</source>
        <translation>Arquivos de resultados</translation>
    </message>
    <message>
        <source>Application Selector</source>
        <translation>Seleção de aplicativo</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Aplicativos</translation>
    </message>
</context>
<context>
    <name>ConflictDialog</name>
    <message>
        <source>Do the same with all that follow</source>
        <translation>Fazer o mesmo com todos os seguintes</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Arquivo existente</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already.</source>
        <translation>&quot;%1&quot; já existe.</translation>
    </message>
    <message>
        <source>There now</source>
        <translation>Existente</translation>
    </message>
    <message>
        <source>To be copied</source>
        <translation>A copiar</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Substituir</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Pular</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Manter ambos</translation>
    </message>
    <message>
        <source>Cancel all</source>
        <translation>Cancelar tudo</translation>
    </message>
</context>
<context>
    <name>FcpAppCORBA</name>
    <message>
        <source>the link to %1 was given up</source>
        <translation>a conexão com %1 foi abandonada</translation>
    </message>
</context>
<context>
    <name>FileActionBar</name>
    <message>
        <source>List anew</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nova pasta</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renomear</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Colar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
</context>
<context>
    <name>FileItemDelegate</name>
    <message>
        <source>New name</source>
        <translation>Novo nome</translation>
    </message>
</context>
<context>
    <name>FileListView</name>
    <message>
        <source>Columns</source>
        <translation>Colunas</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>this is not the name of a file</source>
        <translation>não é o nome de um arquivo</translation>
    </message>
    <message>
        <source>its name holds bytes that are no text</source>
        <translation>o nome contém bytes que não são texto</translation>
    </message>
    <message>
        <source>the name is longer than %1 bytes</source>
        <translation>o nome tem mais de %1 bytes</translation>
    </message>
</context>
<context>
    <name>FileOperations</name>
    <message>
        <source>the instrument</source>
        <translatorcomment>Stands for %2 of “Delete %1 from %2?” (FileQuestions): carries the preposition.</translatorcomment>
        <translation>do instrumento</translation>
    </message>
    <message>
        <source>this computer</source>
        <translatorcomment>Stands for %2 of “Delete %1 from %2?” (FileQuestions): carries the preposition.</translatorcomment>
        <translation>deste computador</translation>
    </message>
    <message>
        <source>the medium %1</source>
        <translatorcomment>Stands for %2 of “Delete %1 from %2?” (FileQuestions): carries the preposition.</translatorcomment>
        <translation>da mídia %1</translation>
    </message>
    <message>
        <source>No folder could be made here: it may be protected.</source>
        <translation>Não foi possível criar uma pasta aqui: o local pode estar protegido.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be renamed to &quot;%2&quot;: the name may be taken.</source>
        <translation>Não é possível renomear &quot;%1&quot; para &quot;%2&quot;: o nome pode já estar em uso.</translation>
    </message>
    <message>
        <source>Renamed to &quot;%1&quot;.</source>
        <translation>Renomeado para &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>What is deleted can&apos;t be brought back.</source>
        <translation>O que for excluído não poderá ser recuperado.</translation>
    </message>
    <message>
        <source>Deleting…</source>
        <translation>Excluindo…</translation>
    </message>
    <message>
        <source>Deleted.</source>
        <translation>Exclusão concluída.</translation>
    </message>
    <message>
        <source>%1 entries</source>
        <translation>%1 itens</translation>
    </message>
    <message>
        <source>Open a folder and tap Paste to move %1.</source>
        <translation>Abra uma pasta e toque em Colar para mover %1.</translation>
    </message>
    <message>
        <source>Open a folder and tap Paste to copy %1.</source>
        <translation>Abra uma pasta e toque em Colar para copiar %1.</translation>
    </message>
    <message>
        <source>Moving…</source>
        <translation>Movendo…</translation>
    </message>
    <message>
        <source>Moved.</source>
        <translation>Movimentação concluída.</translation>
    </message>
    <message>
        <source>Copying…</source>
        <translation>Copiando…</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>Cópia concluída.</translation>
    </message>
    <message>
        <source>Making a folder…</source>
        <translation>Criando uma pasta…</translation>
    </message>
    <message>
        <source>Renaming…</source>
        <translation>Renomeando…</translation>
    </message>
</context>
<context>
    <name>FilePane</name>
    <message>
        <source>Up</source>
        <translation>Pasta superior</translation>
    </message>
    <message>
        <source>Search in this folder</source>
        <translation>Pesquisar nesta pasta</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Types of files</source>
        <translation>Tipos de arquivo</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>The instrument can&apos;t be reached.</source>
        <translation>O instrumento está inacessível.</translation>
    </message>
    <message>
        <source>%1 was removed.</source>
        <translation>A mídia %1 foi removida.</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>A pasta &quot;%1&quot; não existe.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is gone.</source>
        <translation>A pasta &quot;%1&quot; não existe mais.</translation>
    </message>
    <message>
        <source>This folder can&apos;t be listed.</source>
        <translation>Não é possível listar o conteúdo desta pasta.</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Carregando…</translation>
    </message>
    <message>
        <source>Nothing here fits the search.</source>
        <translation>Nenhum item corresponde à pesquisa.</translation>
    </message>
    <message>
        <source>This folder is empty.</source>
        <translation>Esta pasta está vazia.</translation>
    </message>
    <message>
        <source>The link to the instrument is lost</source>
        <translation>Conexão com o instrumento perdida</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>This entry&apos;s name can&apos;t be used.</source>
        <translation>O nome deste item não pode ser usado.</translation>
    </message>
    <message>
        <source>Only %1</source>
        <translation>Somente %1</translation>
    </message>
    <message>
        <source>List only files of %1</source>
        <translation>Mostrar somente os arquivos de %1</translation>
    </message>
    <message>
        <source>There are no files of this type here.</source>
        <translation>Não há arquivos deste tipo aqui.</translation>
    </message>
</context>
<context>
    <name>FilePaths</name>
    <message>
        <source>A name is needed.</source>
        <translation>É necessário um nome.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be a name.</source>
        <translation>&quot;%1&quot; não pode ser um nome.</translation>
    </message>
    <message>
        <source>A name can&apos;t have a &quot;/&quot;.</source>
        <translation>Um nome não pode conter &quot;/&quot;.</translation>
    </message>
    <message>
        <source>A name can&apos;t have the character %1.</source>
        <translation>Um nome não pode conter o caractere %1.</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>Este nome é longo demais.</translation>
    </message>
</context>
<context>
    <name>FileQuestions</name>
    <message>
        <source>1 file</source>
        <translation>1 arquivo</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 arquivo</numerusform>
            <numerusform>%1 arquivos</numerusform>
        </translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 pasta</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders</source>
        <translation>
            <numerusform>%1 pasta</numerusform>
            <numerusform>%1 pastas</numerusform>
        </translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Not everything was copied</source>
        <translation>Nem tudo foi copiado</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 e %2</translation>
    </message>
    <message>
        <source>Delete %1 from %2?</source>
        <translation>Excluir %2 %1?</translation>
    </message>
    <message>
        <source>Delete %1 with everything in it from %2?</source>
        <translation>Excluir %2 %1 com todo o conteúdo?</translation>
    </message>
    <message>
        <source>Delete %1 with everything in them from %2?</source>
        <translation>Excluir %2 %1 com todo o conteúdo?</translation>
    </message>
    <message>
        <source>%1 copied (%2)</source>
        <translation>copiados: %1 (%2)</translation>
    </message>
    <message>
        <source>%1 skipped</source>
        <translation>pulados: %1</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>com falha: %1</translation>
    </message>
    <message>
        <source>%1 not tried</source>
        <translation>não tentados: %1</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>%1 s restantes</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>%1 min restantes</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>%1 h %2 min restantes</translation>
    </message>
</context>
<context>
    <name>FileTransfer</name>
    <message>
        <source>it is no file any more</source>
        <translation>não é mais um arquivo</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>não existe</translation>
    </message>
    <message>
        <source>it was changed while it was read</source>
        <translation>foi alterado durante a leitura</translation>
    </message>
    <message>
        <source>%1 bytes came of a file of %2 bytes</source>
        <translation>recebidos %1 bytes de um arquivo de %2 bytes</translation>
    </message>
    <message>
        <source>there is no room left: %1</source>
        <translation>não há mais espaço: %1</translation>
    </message>
    <message>
        <source>there is no link to the instrument</source>
        <translation>não há conexão com o instrumento</translation>
    </message>
    <message>
        <source>the instrument cannot list %1</source>
        <translation>o instrumento não consegue listar o conteúdo de %1</translation>
    </message>
    <message>
        <source>%1; it is unknown whether the instrument still did its last step</source>
        <translation>%1; não se sabe se o instrumento ainda executou a última etapa</translation>
    </message>
    <message>
        <source>%1 (the instrument answers %2)</source>
        <translation>%1 (resposta do instrumento: %2)</translation>
    </message>
    <message>
        <source>the instrument cannot give a file of %1 the name %2</source>
        <translation>o instrumento não consegue dar a um arquivo de %1 o nome %2</translation>
    </message>
    <message>
        <source>the instrument cannot remove %1</source>
        <translation>o instrumento não consegue remover %1</translation>
    </message>
    <message>
        <source>the instrument cannot make a folder in %1</source>
        <translation>o instrumento não consegue criar uma pasta em %1</translation>
    </message>
    <message>
        <source>this is not the path of a file</source>
        <translation>não é o caminho de um arquivo</translation>
    </message>
    <message>
        <source>it cannot be carried into itself</source>
        <translation>não pode ser transferido para dentro de si mesmo</translation>
    </message>
    <message>
        <source>the folders are nested too deeply</source>
        <translation>há pastas aninhadas em níveis demais</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>exceção desconhecida</translation>
    </message>
    <message>
        <source>the folder %1 is not there</source>
        <translation>a pasta %1 não existe</translation>
    </message>
    <message>
        <source>%1 are needed, and %2 are free in %3</source>
        <translation>são necessários %1, e há %2 livres em %3</translation>
    </message>
    <message>
        <source>a file at the target has the name of this folder</source>
        <translation>há no destino um arquivo com o nome desta pasta</translation>
    </message>
    <message>
        <source>%1; what may be left as %2 is removed when the file is carried again</source>
        <translation>%1; o que tiver restado em %2 será removido quando o arquivo for transferido de novo</translation>
    </message>
    <message>
        <source>a folder at the target has the name of this file</source>
        <translation>há no destino uma pasta com o nome deste arquivo</translation>
    </message>
</context>
<context>
    <name>FwButtonTabWidget</name>
    <message>
        <source>Previous tabs</source>
        <translation>Guias anteriores</translation>
    </message>
    <message>
        <source>More tabs</source>
        <translation>Mais guias</translation>
    </message>
</context>
<context>
    <name>FwLoadSaveDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Instrumento</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computador</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Carregar</translation>
    </message>
    <message>
        <source>Transfer files</source>
        <translation>Transferir arquivos</translation>
    </message>
    <message>
        <source>Nothing can be saved here now.</source>
        <translation>No momento não é possível salvar aqui.</translation>
    </message>
    <message>
        <source>There is a folder with the name &quot;%1&quot;.</source>
        <translation>Já existe uma pasta com o nome &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already. Overwrite it?</source>
        <translation>&quot;%1&quot; já existe. Substituir?</translation>
    </message>
    <message>
        <source>What it holds now will be lost.</source>
        <translation>O conteúdo atual será perdido.</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Substituir</translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation>Transferência</translation>
    </message>
    <message>
        <source>Files are being copied. Cancel that and close?</source>
        <translation>Há arquivos sendo copiados. Cancelar a cópia e fechar?</translation>
    </message>
    <message>
        <source>What has been copied so far stays.</source>
        <translation>O que já foi copiado será mantido.</translation>
    </message>
    <message>
        <source>Cancel and close</source>
        <translation>Cancelar e fechar</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Continuar</translation>
    </message>
</context>
<context>
    <name>FwLogView</name>
    <message>
        <source>All levels</source>
        <translation>Todos os níveis</translation>
    </message>
    <message>
        <source>From info</source>
        <translation>A partir de info</translation>
    </message>
    <message>
        <source>From warning</source>
        <translation>A partir de aviso</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Erros</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>Todas as categorias</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nível</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoria</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Log</translation>
    </message>
</context>
<context>
    <name>FwNavigationButton</name>
    <message>
        <source>Previous window</source>
        <translation>Janela anterior</translation>
    </message>
    <message>
        <source>Next window</source>
        <translation>Próxima janela</translation>
    </message>
</context>
<context>
    <name>HelpBrowser</name>
    <message>
        <source>Only pages on this instrument can be shown here.</source>
        <translation>Aqui só podem ser exibidas páginas deste instrumento.</translation>
    </message>
    <message>
        <source>The help page is missing, or can not be read.</source>
        <translation>A página de ajuda não existe ou não pode ser lida.</translation>
    </message>
    <message>
        <source>This page can not be shown</source>
        <translation>Não é possível exibir esta página</translation>
    </message>
</context>
<context>
    <name>LampSign</name>
    <message>
        <source>On</source>
        <translation>Ligado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>Indicator: %1</source>
        <translation>Indicador: %1</translation>
    </message>
</context>
<context>
    <name>LocalFileCopy</name>
    <message>
        <source>it is no file any more</source>
        <translation>não é mais um arquivo</translation>
    </message>
    <message>
        <source>it cannot be read: %1</source>
        <translation>não é possível lê-lo: %1</translation>
    </message>
    <message>
        <source>it cannot be written: %1</source>
        <translation>não é possível gravá-lo: %1</translation>
    </message>
</context>
<context>
    <name>LocalHelperThread</name>
    <message>
        <source>Cancelled.</source>
        <translation>Cancelado.</translation>
    </message>
    <message>
        <source>Files are being copied, moved or deleted already.</source>
        <translation>Já há arquivos sendo copiados, movidos ou excluídos.</translation>
    </message>
    <message>
        <source>There is an entry of that name already.</source>
        <translation>Já existe um item com esse nome.</translation>
    </message>
    <message>
        <source>This can&apos;t be done with this folder, or not at this place.</source>
        <translation>Operação não permitida com esta pasta ou neste local.</translation>
    </message>
    <message>
        <source>This is neither a file nor a folder nor a link, and can&apos;t be copied.</source>
        <translation>Não é um arquivo, uma pasta nem um link e não pode ser copiado.</translation>
    </message>
    <message>
        <source>It is in use.</source>
        <translation>Está em uso.</translation>
    </message>
    <message>
        <source>Nothing may be changed here.</source>
        <translation>Não é permitido alterar nada aqui.</translation>
    </message>
</context>
<context>
    <name>LocalSource</name>
    <message>
        <source>it is not there</source>
        <translation>não existe</translation>
    </message>
    <message>
        <source>this folder cannot be read</source>
        <translation>não é possível ler esta pasta</translation>
    </message>
</context>
<context>
    <name>LocalTarget</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made: %2</source>
        <translation>não é possível criar a pasta %1: %2</translation>
    </message>
    <message>
        <source>%1 was changed while it was written</source>
        <translation>%1 foi alterado durante a gravação</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>não é possível gravar %1: %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>não é possível remover %1: %2</translation>
    </message>
    <message>
        <source>%1 cannot be flushed to the medium: %2</source>
        <translation>não é possível concluir a gravação de %1 na mídia: %2</translation>
    </message>
</context>
<context>
    <name>NameField</name>
    <message>
        <source>File name</source>
        <translation>Nome do arquivo</translation>
    </message>
</context>
<context>
    <name>NumericField</name>
    <message>
        <source>Whole numbers only</source>
        <translation>Somente números inteiros</translation>
    </message>
    <message>
        <source>No negative values</source>
        <translation>Sem valores negativos</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no digit here</source>
        <translation>&quot;%1&quot; não é um dígito válido aqui</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>Digite um número</translation>
    </message>
    <message>
        <source>Digits after the point: %1 at most</source>
        <translation>Casas decimais: no máximo %1</translation>
    </message>
    <message>
        <source>Not a number in the range</source>
        <translation>Número fora do intervalo</translation>
    </message>
    <message>
        <source>The largest value is %1</source>
        <translation>O valor máximo é %1</translation>
    </message>
    <message>
        <source>The smallest value is %1</source>
        <translation>O valor mínimo é %1</translation>
    </message>
</context>
<context>
    <name>NumpadKeys</name>
    <message>
        <source>Without a prefix</source>
        <translation>Sem prefixo</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>Cursor para a esquerda</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>Cursor para a direita</translation>
    </message>
    <message>
        <source>Change the sign</source>
        <translation>Trocar o sinal</translation>
    </message>
    <message>
        <source>Decimal point</source>
        <translation>Ponto decimal</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Mín</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Máx</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Padrão</translation>
    </message>
</context>
<context>
    <name>NumpadPanel</name>
    <message>
        <source>Value: %1</source>
        <translation>Valor: %1</translation>
    </message>
    <message>
        <source>Range: %1 to %2</source>
        <translation>Intervalo: %1 a %2</translation>
    </message>
    <message>
        <source>Step: %1</source>
        <translation>Passo: %1</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Edit digits</source>
        <translation>Editar dígitos</translation>
    </message>
    <message>
        <source>Display password</source>
        <translation>Mostrar senha</translation>
    </message>
    <message>
        <source>Disable password protection</source>
        <translation>Desativar proteção por senha</translation>
    </message>
</context>
<context>
    <name>QLrudDialog</name>
    <message>
        <source>Up</source>
        <translation>Para cima</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Para baixo</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Esquerda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Direita</translation>
    </message>
    <message>
        <source>Keypad</source>
        <translation>Teclado numérico</translation>
    </message>
    <message>
        <source>Move keys up</source>
        <translation>Mover as teclas para cima</translation>
    </message>
    <message>
        <source>Move keys down</source>
        <translation>Mover as teclas para baixo</translation>
    </message>
</context>
<context>
    <name>QvexDialogBorder</name>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Mover para cima</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Mover para baixo</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Mover para a esquerda</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Mover para a direita</translation>
    </message>
</context>
<context>
    <name>QvexFileMover</name>
    <message>
        <source>%1 was not carried: %2</source>
        <translation>%1 não foi transferido: %2</translation>
    </message>
    <message>
        <source>%1 was not carried: an unknown exception</source>
        <translation>%1 não foi transferido: exceção desconhecida</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>não é possível ler %1: %2</translation>
    </message>
    <message>
        <source>%1 exists on the instrument</source>
        <translation>%1 já existe no instrumento</translation>
    </message>
    <message>
        <source>the instrument cannot write %1</source>
        <translation>o instrumento não consegue gravar %1</translation>
    </message>
    <message>
        <source>the instrument could not store what was sent of %1</source>
        <translation>o instrumento não conseguiu armazenar os dados enviados de %1</translation>
    </message>
    <message>
        <source>the destination has appeared on the instrument meanwhile</source>
        <translation>o destino surgiu no instrumento nesse meio-tempo</translation>
    </message>
    <message>
        <source>the instrument could not store the file</source>
        <translation>o instrumento não conseguiu armazenar o arquivo</translation>
    </message>
    <message>
        <source>%1 has shrunk while it was read</source>
        <translation>%1 diminuiu durante a leitura</translation>
    </message>
    <message>
        <source>aborted after %1 bytes</source>
        <translation>interrompido após %1 bytes</translation>
    </message>
    <message>
        <source>the instrument cannot read %1</source>
        <translation>o instrumento não consegue ler %1</translation>
    </message>
    <message>
        <source>%1 exists</source>
        <translation>%1 já existe</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>não é possível remover %1: %2</translation>
    </message>
    <message>
        <source>the folder of %1 cannot be made</source>
        <translation>não é possível criar a pasta de %1</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>não é possível gravar %1: %2</translation>
    </message>
    <message>
        <source>the instrument could not read the file to its end</source>
        <translation>o instrumento não conseguiu ler o arquivo até o fim</translation>
    </message>
</context>
<context>
    <name>QvexMessageBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Restaurar padrões</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Salvar tudo</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>Yes to All</source>
        <translation>Sim para todos</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>No to All</source>
        <translation>Não para todos</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abortar</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>Hide Details</source>
        <translation>Ocultar detalhes</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Mostrar detalhes</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informação</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pergunta</translation>
    </message>
</context>
<context>
    <name>QvexNumpadDlg</name>
    <message>
        <source>The value stays as it is</source>
        <translation>O valor permanece inalterado</translation>
    </message>
    <message>
        <source>%1; or choose a unit</source>
        <translation>%1; ou escolha uma unidade</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>Digite um número</translation>
    </message>
</context>
<context>
    <name>QvexPasswordPopup</name>
    <message>
        <source>Password Protection</source>
        <translation>Proteção por senha</translation>
    </message>
    <message>
        <source>Password Does Not Match.
Please Type Correct Password!</source>
        <translation>A senha não confere.
Digite a senha correta.</translation>
    </message>
</context>
<context>
    <name>QvexRemoteFileModel</name>
    <message>
        <source>It was cancelled.</source>
        <translation>Operação cancelada.</translation>
    </message>
    <message>
        <source>Another operation is still running.</source>
        <translation>Outra operação ainda está em andamento.</translation>
    </message>
    <message>
        <source>The link to the instrument was lost; it is not known whether it was done.</source>
        <translation>A conexão com o instrumento foi perdida; não se sabe se a operação foi executada.</translation>
    </message>
    <message>
        <source>Its name can&apos;t be used.</source>
        <translation>O nome não pode ser usado.</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Instrumento</translation>
    </message>
    <message>
        <source>Instrument (%1)</source>
        <translation>Instrumento (%1)</translation>
    </message>
    <message>
        <source>Internal</source>
        <translatorcomment>Never shown: compared with the name of a directory on the instrument.</translatorcomment>
        <translation>Internal</translation>
    </message>
    <message>
        <source>Remote</source>
        <translatorcomment>Never shown: compared with the name of a directory on the instrument.</translatorcomment>
        <translation>Remote</translation>
    </message>
    <message>
        <source>It is not there any more.</source>
        <translation>Não existe mais.</translation>
    </message>
    <message>
        <source>There is no permission for it.</source>
        <translation>Não há permissão.</translation>
    </message>
    <message>
        <source>Something of that name is there already.</source>
        <translation>Já existe um item com esse nome.</translation>
    </message>
    <message>
        <source>A folder can&apos;t be put into itself.</source>
        <translation>Uma pasta não pode ser colocada dentro de si mesma.</translation>
    </message>
    <message>
        <source>The instrument&apos;s storage is full.</source>
        <translation>O armazenamento do instrumento está cheio.</translation>
    </message>
    <message>
        <source>The instrument reported error %1.</source>
        <translation>O instrumento informou o erro %1.</translation>
    </message>
    <message>
        <source>No folder could be made here: it may be protected.</source>
        <translation>Não foi possível criar uma pasta aqui: o local pode estar protegido.</translation>
    </message>
</context>
<context>
    <name>QvextHelpDialog</name>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>Página de ajuda</translation>
    </message>
</context>
<context>
    <name>RemoteSource</name>
    <message>
        <source>it is not there</source>
        <translation>não existe</translation>
    </message>
</context>
<context>
    <name>RemoteTarget</name>
    <message>
        <source>the instrument cannot replace %1</source>
        <translation>o instrumento não consegue substituir %1</translation>
    </message>
    <message>
        <source>%1; the old file may be called %2 now</source>
        <translation>%1; o arquivo anterior pode agora se chamar %2</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Close panel</source>
        <translation>Fechar painel</translation>
    </message>
</context>
<context>
    <name>SplashLines</name>
    <message>
        <source>Start-up messages</source>
        <translation>Mensagens de inicialização</translation>
    </message>
</context>
<context>
    <name>StatusStrip</name>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Stop what is under way</source>
        <translation>Parar a operação em andamento</translation>
    </message>
</context>
<context>
    <name>TransferPanel</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>Progress of the transfer</source>
        <translation>Progresso da transferência</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Cancel the transfer</source>
        <translation>Cancelar a transferência</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Cancelando…</translation>
    </message>
</context>
<context>
    <name>TransferView</name>
    <message>
        <source>&quot;%1&quot; can&apos;t be copied into itself.</source>
        <translation>&quot;%1&quot; não pode ser copiado para dentro de si mesmo.</translation>
    </message>
    <message>
        <source>Both sides show the same folder.</source>
        <translation>Os dois lados mostram a mesma pasta.</translation>
    </message>
    <message>
        <source>Copy to the right side</source>
        <translation>Copiar para o lado direito</translation>
    </message>
    <message>
        <source>Copy to the left side</source>
        <translation>Copiar para o lado esquerdo</translation>
    </message>
    <message>
        <source>To %1:</source>
        <translation>Para %1:</translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation>Transferência</translation>
    </message>
</context>
<context>
    <name>UnitPrefix</name>
    <message>
        <source>Enter a number before the unit</source>
        <translation>Digite um número antes da unidade</translation>
    </message>
    <message>
        <source>Too many digits for this unit</source>
        <translation>Dígitos demais para esta unidade</translation>
    </message>
</context>
<context>
    <name>VerdictSign</name>
    <message>
        <source>No result</source>
        <translation>Sem resultado</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>Aprovado</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Reprovado</translation>
    </message>
    <message>
        <source>See results</source>
        <translation>Ver resultados</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>subject and verdict</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>VexLinkSupervisor</name>
    <message>
        <source>registered with %1:%2 as client %3</source>
        <translation>registrado em %1:%2 como cliente %3</translation>
    </message>
    <message>
        <source>the controller answers again</source>
        <translation>o controlador voltou a responder</translation>
    </message>
    <message>
        <source>connecting to %1:%2, attempt %3</source>
        <translation>conectando a %1:%2, tentativa %3</translation>
    </message>
    <message>
        <source>no answer for %1 ms</source>
        <translation>sem resposta há %1 ms</translation>
    </message>
    <message>
        <source>no longer watched</source>
        <translation>monitoramento encerrado</translation>
    </message>
</context>
</TS>
