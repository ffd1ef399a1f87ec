<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Carpeta de archivos</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Acceso directo</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
</context>
<context>
    <name>QPrintDialog</name>
    <message>
        <source>%1 does not follow the correct syntax. Please use ',' to separate ranges and pages, '-' to define ranges and make sure ranges do not intersect with each other.</source>
        <translation>%1 no está bien escrito. Use ',' para separar intervalos y páginas, '-' para los intervalos, y que los intervalos no se crucen.</translation>
    </message>
    <message>
        <source>Duplex Settings Conflicts</source>
        <translation>Opciones de doble cara en conflicto</translation>
    </message>
    <message>
        <source>Invalid Pages Definition</source>
        <translation>Indicación de páginas no válida</translation>
    </message>
    <message>
        <source>There are conflicts in duplex settings. Do you want to fix them?</source>
        <translation>Las opciones de doble cara están en conflicto. ¿Quiere corregirlas?</translation>
    </message>
</context>
<context>
    <name>QPrintPropertiesWidget</name>
    <message>
        <source>Advanced</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>There are conflicts in some options. Please fix them.</source>
        <translation>Algunas opciones están en conflicto. Corríjalas.</translation>
    </message>
</context>
<context>
    <name>QPrintSettingsOutput</name>
    <message>
        <source>Double Sided Printing</source>
        <translation>Impresión a doble cara</translation>
    </message>
    <message>
        <source>Long side binding</source>
        <translation>Encuadernación por el lado largo</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivada</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Short side binding</source>
        <translation>Encuadernación por el lado corto</translation>
    </message>
    <message>
        <source>Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.</source>
        <translation>Páginas o intervalos separados por comas. Un intervalo son dos números separados por un guion: 3,5-7,9 imprime las páginas 3, 5, 6, 7 y 9.</translation>
    </message>
</context>
</TS>
