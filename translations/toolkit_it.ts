<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Cartella di file</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Collegamento</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Sconosciuto</translation>
    </message>
</context>
<context>
    <name>QPrintDialog</name>
    <message>
        <source>%1 does not follow the correct syntax. Please use ',' to separate ranges and pages, '-' to define ranges and make sure ranges do not intersect with each other.</source>
        <translation>%1 non è scritto correttamente. Usare ',' per separare intervalli e pagine, '-' per gli intervalli, e non sovrapporre gli intervalli.</translation>
    </message>
    <message>
        <source>Duplex Settings Conflicts</source>
        <translation>Impostazioni fronte-retro in conflitto</translation>
    </message>
    <message>
        <source>Invalid Pages Definition</source>
        <translation>Indicazione delle pagine non valida</translation>
    </message>
    <message>
        <source>There are conflicts in duplex settings. Do you want to fix them?</source>
        <translation>Le impostazioni fronte-retro sono in conflitto. Correggerle?</translation>
    </message>
</context>
<context>
    <name>QPrintPropertiesWidget</name>
    <message>
        <source>Advanced</source>
        <translation>Avanzate</translation>
    </message>
    <message>
        <source>There are conflicts in some options. Please fix them.</source>
        <translation>Alcune opzioni sono in conflitto. Correggerle.</translation>
    </message>
</context>
<context>
    <name>QPrintSettingsOutput</name>
    <message>
        <source>Double Sided Printing</source>
        <translation>Stampa fronte-retro</translation>
    </message>
    <message>
        <source>Long side binding</source>
        <translation>Rilegatura sul lato lungo</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Disattivata</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>Short side binding</source>
        <translation>Rilegatura sul lato corto</translation>
    </message>
    <message>
        <source>Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.</source>
        <translation>Pagine o intervalli separati da virgole. Un intervallo è di due numeri separati da un trattino: 3,5-7,9 stampa le pagine 3, 5, 6, 7 e 9.</translation>
    </message>
</context>
</TS>
