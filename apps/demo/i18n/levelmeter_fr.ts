<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ControlButtons</name>
    <message>
        <source>Autosave: on</source>
        <translation>Enregistrement auto : oui</translation>
    </message>
    <message>
        <source>Autosave: off</source>
        <translation>Enregistrement auto : non</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
</context>
<context>
    <name>EventList</name>
    <message>
        <source>Events</source>
        <translation>Événements</translation>
    </message>
</context>
<context>
    <name>Framework</name>
    <message>
        <source>The level meter runs alone: there is no other application.</source>
        <translation>Le mesureur de niveau fonctionne seul : il n&apos;y a pas d&apos;autre application.</translation>
    </message>
    <message>
        <source>A run is under way. Stop it and close?</source>
        <translation>Une mesure est en cours. L&apos;arrêter et fermer ?</translation>
    </message>
    <message>
        <source>The last result was not saved. Close all the same?</source>
        <translation>Le dernier résultat n&apos;est pas enregistré. Fermer quand même ?</translation>
    </message>
    <message>
        <source>Close the level meter</source>
        <translation>Fermer le mesureur de niveau</translation>
    </message>
</context>
<context>
    <name>LinkPanel</name>
    <message>
        <source>Link up</source>
        <translation>Liaison établie</translation>
    </message>
    <message>
        <source>Link slow</source>
        <translation>Liaison lente</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Link lost</source>
        <translation>Liaison perdue</translation>
    </message>
    <message>
        <source>No link</source>
        <translation>Aucune liaison</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Liaison</translation>
    </message>
    <message>
        <source>Try again now</source>
        <translation>Réessayer maintenant</translation>
    </message>
</context>
<context>
    <name>LogPanel</name>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>The log is not kept in a file.</source>
        <translation>Le journal n&apos;est pas conservé dans un fichier.</translation>
    </message>
    <message>
        <source>The log is kept in %1</source>
        <translation>Le journal se trouve dans %1</translation>
    </message>
</context>
<context>
    <name>Meter</name>
    <message>
        <source>The instrument does not say whether its test has ended.</source>
        <translation>L&apos;appareil n&apos;indique pas si son test est terminé.</translation>
    </message>
    <message>
        <source>Stopped without a link; the instrument&apos;s test is ended when the link is back.</source>
        <translation>Arrêté sans liaison ; le test de l&apos;appareil sera terminé au retour de la liaison.</translation>
    </message>
    <message>
        <source>The instrument refused to launch its test &quot;%1&quot;.</source>
        <translation>L&apos;appareil a refusé de lancer son test « %1 ».</translation>
    </message>
    <message>
        <source>The link was lost before the test ran: %1</source>
        <translation>Liaison perdue avant le début du test : %1</translation>
    </message>
    <message>
        <source>Link lost: %1</source>
        <translation>Liaison perdue : %1</translation>
    </message>
    <message>
        <source>The link was lost while the test ended.</source>
        <translation>La liaison a été perdue pendant la fin du test.</translation>
    </message>
    <message>
        <source>The instrument&apos;s test runs.</source>
        <translation>Le test de l&apos;appareil est en cours.</translation>
    </message>
    <message>
        <source>The link is back, the run goes on.</source>
        <translation>La liaison est rétablie, la mesure continue.</translation>
    </message>
    <message>
        <source>Level below the threshold: %1 dBm</source>
        <translation>Niveau sous le seuil : %1 dBm</translation>
    </message>
    <message>
        <source>Level back above the threshold</source>
        <translation>Niveau de nouveau au-dessus du seuil</translation>
    </message>
    <message>
        <source>The test ended before it ran.</source>
        <translation>Le test s&apos;est terminé avant d&apos;avoir démarré.</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêté</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>The link is back, but the instrument&apos;s test has ended.</source>
        <translation>La liaison est rétablie, mais le test de l&apos;appareil est terminé.</translation>
    </message>
    <message>
        <source>The instrument has ended its test before the time was over.</source>
        <translation>L&apos;appareil a terminé son test avant la fin de la durée.</translation>
    </message>
</context>
<context>
    <name>MeterWindow</name>
    <message>
        <source>Measuring</source>
        <translation>Mesure en cours</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Level meter</source>
        <translation>Mesureur de niveau</translation>
    </message>
</context>
<context>
    <name>PlotPanel</name>
    <message>
        <source>Zoom in</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>No markers</source>
        <translation>Sans marqueurs</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>Marqueurs</translation>
    </message>
    <message>
        <source>Tap the trace to set a marker.</source>
        <translation>Toucher la courbe pour poser un marqueur.</translation>
    </message>
</context>
<context>
    <name>ResultFiles</name>
    <message>
        <source>Save the result</source>
        <translation>Enregistrer le résultat</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Enregistré sous %1</translation>
    </message>
    <message>
        <source>Result File Browser</source>
        <translation>Fichiers de résultats</translation>
    </message>
    <message>
        <source>%1 is on the instrument now</source>
        <translation>%1 est maintenant sur l&apos;appareil</translation>
    </message>
    <message>
        <source>%1 did not get to the instrument: %2</source>
        <translation>%1 n&apos;est pas arrivé sur l&apos;appareil : %2</translation>
    </message>
    <message>
        <source>Files of the instrument</source>
        <translation>Fichiers de l&apos;appareil</translation>
    </message>
    <message>
        <source>Delete %1? It can&apos;t be brought back.</source>
        <translation>Supprimer %1 ? C&apos;est irréversible.</translation>
    </message>
    <message>
        <source>Delete a result</source>
        <translation>Supprimer un résultat</translation>
    </message>
    <message>
        <source>%1 can&apos;t be deleted.</source>
        <translation>Impossible de supprimer %1.</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Choose a result at the left.</source>
        <translation>Choisir un résultat à gauche.</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Mesuré</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>Niveau minimal</translation>
    </message>
    <message>
        <source>Highest level</source>
        <translation>Niveau maximal</translation>
    </message>
    <message>
        <source>Mean power</source>
        <translation>Puissance moyenne</translation>
    </message>
    <message>
        <source>Bit errors</source>
        <translation>Erreurs binaires</translation>
    </message>
    <message>
        <source>Error ratio</source>
        <translation>Taux d&apos;erreur</translation>
    </message>
    <message>
        <source>Lowest level allowed</source>
        <translation>Niveau minimal admis</translation>
    </message>
    <message>
        <source>Error ratio allowed</source>
        <translation>Taux d&apos;erreur admis</translation>
    </message>
    <message>
        <source>Optical frequency</source>
        <translation>Fréquence optique</translation>
    </message>
    <message>
        <source>%1 THz</source>
        <translation>%1 THz</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Débit binaire</translation>
    </message>
    <message>
        <source>%1 Gbit/s</source>
        <translation>%1 Gbit/s</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>Ports</translation>
    </message>
    <message>
        <source>Saved results</source>
        <translation>Résultats enregistrés</translation>
    </message>
    <message>
        <source>Nothing was saved yet. A run that is over is saved in the test window.</source>
        <translation>Rien n&apos;est encore enregistré. Une mesure terminée s&apos;enregistre dans la fenêtre de test.</translation>
    </message>
    <message>
        <source>Figures of the result</source>
        <translation>Valeurs du résultat</translation>
    </message>
    <message>
        <source>Open another file</source>
        <translation>Ouvrir un fichier</translation>
    </message>
    <message>
        <source>Upload to instrument</source>
        <translation>Envoyer à l&apos;appareil</translation>
    </message>
    <message>
        <source>Progress of the upload</source>
        <translation>Progression de l&apos;envoi</translation>
    </message>
    <message>
        <source>Files of instrument</source>
        <translation>Fichiers de l&apos;appareil</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>RunFile</name>
    <message>
        <source>%1 can&apos;t be written: %2</source>
        <translation>Impossible d&apos;écrire %1 : %2</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>Impossible de lire %1 : %2</translation>
    </message>
    <message>
        <source>%1 is larger than %2 MiB.</source>
        <translation>%1 dépasse %2 Mio.</translation>
    </message>
    <message>
        <source>%1 is no run of the level meter: %2</source>
        <translation>%1 n&apos;est pas une mesure du mesureur de niveau : %2</translation>
    </message>
</context>
<context>
    <name>RunReader</name>
    <message>
        <source>it does not begin as XML does</source>
        <translation>il ne commence pas comme du XML</translation>
    </message>
    <message>
        <source>a tag in it is too long</source>
        <translation>une balise y est trop longue</translation>
    </message>
    <message>
        <source>another application has written it</source>
        <translation>une autre application l&apos;a écrit</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
    <message>
        <source>it has no document type VEX</source>
        <translation>il n&apos;a pas le type de document VEX</translation>
    </message>
    <message>
        <source>it declares entities</source>
        <translation>il déclare des entités</translation>
    </message>
    <message>
        <source>line %1: unknown element %2</source>
        <translation>ligne %1 : élément inconnu %2</translation>
    </message>
    <message>
        <source>its settings come after its samples</source>
        <translation>ses réglages suivent ses valeurs</translation>
    </message>
    <message>
        <source>it has too many events</source>
        <translation>il a trop d&apos;événements</translation>
    </message>
    <message>
        <source>it has too many samples</source>
        <translation>il a trop de valeurs</translation>
    </message>
    <message>
        <source>line %1: the samples are not in order</source>
        <translation>ligne %1 : les valeurs ne sont pas dans l&apos;ordre</translation>
    </message>
    <message>
        <source>line %1: expected a number from %2 to %3, found &apos;%4&apos;</source>
        <translation>ligne %1 : nombre de %2 à %3 attendu, « %4 » trouvé</translation>
    </message>
</context>
<context>
    <name>SetupPage</name>
    <message>
        <source>Test at the instrument</source>
        <translation>Test de l&apos;appareil</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>What is measured, and its limits</source>
        <translation>Mesure et limites</translation>
    </message>
    <message>
        <source>Pattern that is sent, 32 bits</source>
        <translation>Motif émis, 32 bits</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>Hexadécimal</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Binaire</translation>
    </message>
    <message>
        <source>PAM4 symbols</source>
        <translation>Symboles PAM4</translation>
    </message>
    <message>
        <source>The three fields show the same pattern: each follows the others.</source>
        <translation>Les trois champs montrent le même motif : chacun suit les autres.</translation>
    </message>
    <message>
        <source>A run is under way. It can be stopped in the test window.</source>
        <translation>Une mesure est en cours. Elle peut être arrêtée dans la fenêtre de test.</translation>
    </message>
    <message>
        <source>Light colours</source>
        <translation>Couleurs claires</translation>
    </message>
    <message>
        <source>Dark colours</source>
        <translation>Couleurs sombres</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Standard values</source>
        <translation>Valeurs standard</translation>
    </message>
    <message>
        <source>Start the test</source>
        <translation>Lancer le test</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>Optical frequency</source>
        <translation>Fréquence optique</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Débit binaire</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>Niveau minimal</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Samples per second</source>
        <translation>Valeurs par seconde</translation>
    </message>
    <message>
        <source>Error ratio limit, power of 10</source>
        <translation>Limite d&apos;erreur, puissance de 10</translation>
    </message>
</context>
<context>
    <name>TestPage</name>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>Save result</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>The instrument launches its test &quot;%1&quot; ...</source>
        <translation>L&apos;appareil lance son test « %1 » ...</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>Mesure en cours</translation>
    </message>
    <message>
        <source>The link is lost. The run goes on when it is back.</source>
        <translation>La liaison est perdue. La mesure continuera à son retour.</translation>
    </message>
    <message>
        <source>The instrument ends its test ...</source>
        <translation>L&apos;appareil termine son test ...</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>No link to the instrument, so no test can be started.</source>
        <translation>Sans liaison à l&apos;appareil, aucun test ne peut être lancé.</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>Interrompu</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Level now</source>
        <translation>Niveau actuel</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>Niveau minimal</translation>
    </message>
    <message>
        <source>Mean power</source>
        <translation>Puissance moyenne</translation>
    </message>
    <message>
        <source>Bit errors</source>
        <translation>Erreurs binaires</translation>
    </message>
    <message>
        <source>Error ratio</source>
        <translation>Taux d&apos;erreur</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Progression de la mesure</translation>
    </message>
</context>
<context>
    <name>TracePlot</name>
    <message>
        <source>Trace of the level over time</source>
        <translation>Courbe du niveau dans le temps</translation>
    </message>
    <message>
        <source>Time in s</source>
        <translation>Temps en s</translation>
    </message>
    <message>
        <source>Level in dBm</source>
        <translation>Niveau en dBm</translation>
    </message>
    <message>
        <source>%1: %2 s, %3 dBm</source>
        <translation>%1 : %2 s, %3 dBm</translation>
    </message>
    <message>
        <source>B - A: %1 s, %2 dB</source>
        <translation>B - A : %1 s, %2 dB</translation>
    </message>
    <message>
        <source>no link</source>
        <translation>aucune liaison</translation>
    </message>
    <message>
        <source>Threshold %1 dBm</source>
        <translation>Seuil %1 dBm</translation>
    </message>
</context>
<context>
    <name>Wording</name>
    <message>
        <source>PASS</source>
        <translation>BON</translation>
    </message>
    <message>
        <source>FAIL</source>
        <translation>ÉCHEC</translation>
    </message>
    <message>
        <source>No verdict</source>
        <translation>Pas de verdict</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêté</translation>
    </message>
    <message>
        <source>Ended by the instrument</source>
        <translation>Terminé par l&apos;appareil</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>Non démarré</translation>
    </message>
    <message>
        <source>The instrument did not answer in time.</source>
        <translation>L&apos;appareil n&apos;a pas répondu à temps.</translation>
    </message>
    <message>
        <source>The connection broke.</source>
        <translation>La connexion s&apos;est interrompue.</translation>
    </message>
    <message>
        <source>Nothing answers at that address.</source>
        <translation>Rien ne répond à cette adresse.</translation>
    </message>
    <message>
        <source>The connection was closed.</source>
        <translation>La connexion a été fermée.</translation>
    </message>
    <message>
        <source>There is no instrument there.</source>
        <translation>Aucun appareil à cet endroit.</translation>
    </message>
</context>
</TS>
