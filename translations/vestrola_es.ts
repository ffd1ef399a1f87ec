<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="it">
<context>
    <name>Vestrola</name>
    <message>
        <source>Il nome di questo file contiene caratteri sconosciuti, rinominalo:<byte value="xd"/>
%1</source>
        <translation>El nombre de este archivo contiene caracteres desconocidos, cámbielo:<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>La cartella del programma si trova su un disco che non conserva i permessi dei file.<byte value="xd"/>
Chi può leggere il disco può leggere anche i destinatari e le password degli account.</source>
        <translation>La carpeta del programa está en un disco que no conserva los permisos de los archivos.<byte value="xd"/>
Quien puede leer el disco puede leer también los destinatarios y las contraseñas de las cuentas.</translation>
    </message>
    <message>
        <source>Scrivere di nuovo la password.</source>
        <translation>Escriba de nuevo la contraseña.</translation>
    </message>
    <message>
        <source>La password non è nota.</source>
        <translation>No se conoce la contraseña.</translation>
    </message>
    <message>
        <source>La password ha caratteri che il file degli account non può contenere.</source>
        <translation>La contraseña tiene caracteres que el archivo de cuentas no admite.</translation>
    </message>
    <message>
        <source>Resta nel portachiavi.</source>
        <translation>Se queda en el llavero.</translation>
    </message>
    <message>
        <source>Senza la spunta la password resta nel file degli account.</source>
        <translation>Sin la marca, la contraseña se queda en el archivo de cuentas.</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Desbordamiento</translation>
    </message>
    <message>
        <source>Indice non compreso nell&apos;intervallo</source>
        <translation>Índice fuera del intervalo</translation>
    </message>
    <message>
        <source>Tipo non corrispondente</source>
        <translation>Los tipos no coinciden</translation>
    </message>
    <message>
        <source>Impossibile trovare il file</source>
        <translation>No se encontró el archivo</translation>
    </message>
    <message>
        <source>Errore di I/O del dispositivo</source>
        <translation>Error de E/S del dispositivo</translation>
    </message>
    <message>
        <source>Input oltre la fine del file</source>
        <translation>Lectura más allá del final del archivo</translation>
    </message>
    <message>
        <source>Errore di accesso al percorso/file</source>
        <translation>Error de acceso a la ruta o al archivo</translation>
    </message>
    <message>
        <source>Uso non valido di Null</source>
        <translation>Uso no válido de Null</translation>
    </message>
    <message>
        <source>Nessun record corrente</source>
        <translation>No hay registro actual</translation>
    </message>
    <message>
        <source>Elemento non trovato nell&apos;insieme</source>
        <translation>Elemento no encontrado en la colección</translation>
    </message>
    <message>
        <source>È stato scelto Annulla</source>
        <translation>Se eligió Cancelar</translation>
    </message>
    <message>
        <source>Errore del programma</source>
        <translation>Error del programa</translation>
    </message>
    <message>
        <source>Riga %1: il campo %2 non c&apos;è; %3</source>
        <translation>Línea %1: falta el campo %2; %3</translation>
    </message>
    <message numerus="yes">
        <source>inseriti %n destinatari</source>
        <translation>
            <numerusform>%n destinatario añadido</numerusform>
            <numerusform>%n destinatarios añadidos</numerusform>
        </translation>
    </message>
    <message>
        <source>Manca l&apos;indirizzo</source>
        <translation>Falta la dirección</translation>
    </message>
    <message>
        <source>Nell&apos;indirizzo manca &quot;@&quot;</source>
        <translation>A la dirección le falta &quot;@&quot;</translation>
    </message>
    <message>
        <source>Nell&apos;indirizzo manca il nome prima di &quot;@&quot;</source>
        <translation>A la dirección le falta el nombre antes de &quot;@&quot;</translation>
    </message>
    <message>
        <source>Nell&apos;indirizzo manca il dominio dopo &quot;@&quot;</source>
        <translation>A la dirección le falta el dominio después de &quot;@&quot;</translation>
    </message>
    <message>
        <source>L&apos;ultima parte dell&apos;indirizzo ha più di quattro caratteri</source>
        <translation>La última parte de la dirección tiene más de cuatro caracteres</translation>
    </message>
    <message>
        <source>L&apos;indirizzo non è valido</source>
        <translation>La dirección no es válida</translation>
    </message>
    <message>
        <source>Destinatario numero %1: già servito, ma la sua riga non ha più quell&apos;indirizzo. Resta com&apos;è.</source>
        <translation>Destinatario número %1: ya atendido, pero su fila ya no tiene esa dirección. Queda como está.</translation>
    </message>
    <message>
        <source>cartelle perdute</source>
        <translation>carpetas perdidas</translation>
    </message>
    <message numerus="yes">
        <source>altre %n cartelle</source>
        <translation>
            <numerusform>%n carpeta más</numerusform>
            <numerusform>%n carpetas más</numerusform>
        </translation>
    </message>
    <message>
        <source>Il registro di questo invio non c&apos;è più.</source>
        <translation>El registro de este envío ya no existe.</translation>
    </message>
    <message>
        <source>Il registro di questo invio è troppo grande per essere letto.</source>
        <translation>El registro de este envío es demasiado grande para leerlo.</translation>
    </message>
    <message>
        <source>Il registro di questo invio non si può leggere. %1</source>
        <translation>No se puede leer el registro de este envío. %1</translation>
    </message>
    <message>
        <source>La cartella &quot;%1&quot; non si può scrivere.</source>
        <translation>No se puede escribir en la carpeta &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Data e ora</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>Indirizzo</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Esito</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Motivo</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Codice</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Stato</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Risposta del server</source>
        <translation>Respuesta del servidor</translation>
    </message>
    <message>
        <source>Casella o indirizzo inesistente</source>
        <translation>Buzón o dirección inexistente</translation>
    </message>
    <message>
        <source>Casella disattivata</source>
        <translation>Buzón desactivado</translation>
    </message>
    <message>
        <source>Casella piena</source>
        <translation>Buzón lleno</translation>
    </message>
    <message>
        <source>Regole del server: spam, blocchi o limiti</source>
        <translation>Reglas del servidor: spam, bloqueos o límites</translation>
    </message>
    <message>
        <source>Mittente non accettato</source>
        <translation>Remitente no aceptado</translation>
    </message>
    <message>
        <source>Accesso all&apos;account non riuscito</source>
        <translation>No se pudo acceder a la cuenta</translation>
    </message>
    <message>
        <source>Tempo scaduto senza risposta</source>
        <translation>Tiempo agotado sin respuesta</translation>
    </message>
    <message>
        <source>Nessun server di posta per il dominio</source>
        <translation>El dominio no tiene servidor de correo</translation>
    </message>
    <message>
        <source>Server non raggiunto</source>
        <translation>Servidor no alcanzado</translation>
    </message>
    <message>
        <source>Connessione caduta o risposta non valida</source>
        <translation>Conexión perdida o respuesta no válida</translation>
    </message>
    <message>
        <source>Messaggio troppo grande</source>
        <translation>Mensaje demasiado grande</translation>
    </message>
    <message>
        <source>Rifiuto temporaneo: riprovare più tardi</source>
        <translation>Rechazo temporal: vuelva a intentarlo más tarde</translation>
    </message>
    <message>
        <source>Invio fermato</source>
        <translation>Envío detenido</translation>
    </message>
    <message>
        <source>Non spedito dal programma</source>
        <translation>No enviado por el programa</translation>
    </message>
    <message>
        <source>Altro rifiuto del server</source>
        <translation>Otro rechazo del servidor</translation>
    </message>
    <message>
        <source>Consegnato</source>
        <translation>Entregado</translation>
    </message>
    <message>
        <source>Rifiutato</source>
        <translation>Rechazado</translation>
    </message>
    <message>
        <source>Senza risposta</source>
        <translation>Sin respuesta</translation>
    </message>
    <message>
        <source>Non spedito</source>
        <translation>No enviado</translation>
    </message>
    <message>
        <source>Ricerca del server di posta non riuscita per un problema temporaneo: %1.</source>
        <translation>La búsqueda del servidor de correo falló por un problema temporal: %1.</translation>
    </message>
    <message>
        <source>La risposta del DNS sul dominio del destinatario non si può usare: %1.</source>
        <translation>La respuesta del DNS sobre el dominio del destinatario no se puede usar: %1.</translation>
    </message>
    <message>
        <source>Il dominio del destinatario non ha un server di posta: %1.</source>
        <translation>El dominio del destinatario no tiene servidor de correo: %1.</translation>
    </message>
    <message>
        <source>Su questo computer non è configurato un server DNS.</source>
        <translation>Este ordenador no tiene configurado ningún servidor DNS.</translation>
    </message>
    <message>
        <source>Il dominio del destinatario non è valido.</source>
        <translation>El dominio del destinatario no es válido.</translation>
    </message>
    <message>
        <source>il server DNS non si può interrogare</source>
        <translation>no se puede consultar el servidor DNS</translation>
    </message>
    <message>
        <source>il server DNS non ha risposto in tempo</source>
        <translation>el servidor DNS no respondió a tiempo</translation>
    </message>
    <message>
        <source>il server DNS segnala un errore (SERVFAIL)</source>
        <translation>el servidor DNS indica un error (SERVFAIL)</translation>
    </message>
    <message>
        <source>il server DNS rifiuta la domanda (REFUSED)</source>
        <translation>el servidor DNS rechaza la consulta (REFUSED)</translation>
    </message>
    <message>
        <source>è troncata</source>
        <translation>está truncada</translation>
    </message>
    <message>
        <source>comincia con un alias (CNAME)</source>
        <translation>empieza con un alias (CNAME)</translation>
    </message>
    <message>
        <source>i suoi nomi non sono compressi</source>
        <translation>sus nombres no están comprimidos</translation>
    </message>
    <message>
        <source>ha un&apos;altra forma</source>
        <translation>tiene otra forma</translation>
    </message>
    <message>
        <source>Il dominio del destinatario non accetta posta (null MX).</source>
        <translation>El dominio del destinatario no acepta correo (null MX).</translation>
    </message>
    <message>
        <source>non esiste (NXDOMAIN)</source>
        <translation>no existe (NXDOMAIN)</translation>
    </message>
    <message>
        <source>il DNS non ne indica</source>
        <translation>el DNS no indica ninguno</translation>
    </message>
    <message>
        <source>Il file pathDBase.utf8, con il percorso del database, è danneggiato.<byte value="xd"/>
È stato messo da parte con il nome pathDBase.utf8.guasto.</source>
        <translation>El archivo pathDBase.utf8, con la ruta de la base de datos, está dañado.<byte value="xd"/>
Se ha apartado con el nombre pathDBase.utf8.guasto.</translation>
    </message>
    <message>
        <source>La tabella dei destinatari non ha la colonna &quot;id_grp&quot;.</source>
        <translation>La tabla de destinatarios no tiene la columna &quot;id_grp&quot;.</translation>
    </message>
    <message>
        <source>La cartella che la contiene non c&apos;è</source>
        <translation>Falta la carpeta que la contiene</translation>
    </message>
    <message>
        <source>Sta dentro &quot;%1&quot;, perduta anch&apos;essa</source>
        <translation>Dentro de &quot;%1&quot;, también perdida</translation>
    </message>
    <message>
        <source>(cartella %1)</source>
        <translation>(carpeta %1)</translation>
    </message>
    <message>
        <source>La cartella dei destinatari non c&apos;è</source>
        <translation>Falta la carpeta de los destinatarios</translation>
    </message>
    <message>
        <source>(nessuna cartella)</source>
        <translation>(sin carpeta)</translation>
    </message>
    <message>
        <source>I destinatari non hanno una cartella</source>
        <translation>Los destinatarios no tienen carpeta</translation>
    </message>
    <message>
        <source>Indirizzo dell&apos;account</source>
        <translation>Dirección de la cuenta</translation>
    </message>
    <message>
        <source>L&apos;indirizzo email dell&apos;account non è valido: correggerlo nella finestra degli account.</source>
        <translation>La dirección de correo de la cuenta no es válida: corríjala en la ventana de cuentas.</translation>
    </message>
    <message>
        <source>Posta in arrivo (MX)</source>
        <translation>Correo entrante (MX)</translation>
    </message>
    <message>
        <source>Indirizzo del dominio (A)</source>
        <translation>Dirección del dominio (A)</translation>
    </message>
    <message>
        <source>Nome inverso di questo computer</source>
        <translation>Nombre inverso de este ordenador</translation>
    </message>
    <message>
        <source>Firma DKIM</source>
        <translation>Firma DKIM</translation>
    </message>
    <message>
        <source>Il DNS è troppo lento o porta troppo lontano: riprovare più tardi.</source>
        <translation>El DNS es demasiado lento o lleva demasiado lejos: vuelva a intentarlo más tarde.</translation>
    </message>
    <message>
        <source>Il dominio non esiste nel DNS: correggere l&apos;indirizzo dell&apos;account o registrare il dominio.</source>
        <translation>El dominio no existe en el DNS: corrija la dirección de la cuenta o registre el dominio.</translation>
    </message>
    <message>
        <source>Il dominio non ha un record MX: pubblicarne uno, perché risposte e avvisi di mancata consegna arrivino.</source>
        <translation>El dominio no tiene registro MX: publique uno para que lleguen las respuestas y los avisos de no entrega.</translation>
    </message>
    <message>
        <source>nessun indirizzo</source>
        <translation>ninguna dirección</translation>
    </message>
    <message>
        <source>Il dominio dichiara di non ricevere posta (MX nullo): molti server rifiutano i messaggi di un mittente a cui non si può rispondere.</source>
        <translation>El dominio declara que no recibe correo (MX nulo): muchos servidores rechazan los mensajes de un remitente al que no se puede responder.</translation>
    </message>
    <message>
        <source>Nessun server del record MX ha un indirizzo: correggere il record.</source>
        <translation>Ningún servidor del registro MX tiene dirección: corrija el registro.</translation>
    </message>
    <message>
        <source>Il dominio riceve posta.</source>
        <translation>El dominio recibe correo.</translation>
    </message>
    <message>
        <source>Il dominio ha un indirizzo.</source>
        <translation>El dominio tiene una dirección.</translation>
    </message>
    <message>
        <source>Il dominio non ha un indirizzo suo, e non gli serve: ha un record MX.</source>
        <translation>El dominio no tiene dirección propia ni la necesita: tiene un registro MX.</translation>
    </message>
    <message>
        <source>Il dominio non ha né un record MX né un indirizzo: molti server rifiutano i suoi messaggi; pubblicare un record MX.</source>
        <translation>El dominio no tiene ni registro MX ni dirección: muchos servidores rechazan sus mensajes; publique un registro MX.</translation>
    </message>
    <message>
        <source>L&apos;indirizzo pubblico di questo computer non si può conoscere da qui: verificare con il fornitore di rete che abbia un nome inverso.</source>
        <translation>Desde aquí no se puede conocer la dirección pública de este ordenador: compruebe con el proveedor de red que tenga un nombre inverso.</translation>
    </message>
    <message>
        <source>nessun nome</source>
        <translation>ningún nombre</translation>
    </message>
    <message>
        <source>, che non riporta a questo indirizzo</source>
        <translation>, que no lleva de vuelta a esta dirección</translation>
    </message>
    <message>
        <source>Nome e indirizzo si confermano.</source>
        <translation>El nombre y la dirección se confirman.</translation>
    </message>
    <message>
        <source>Chiedere al fornitore di rete un nome inverso che riporti allo stesso indirizzo: senza, molti server rifiutano l&apos;invio diretto.</source>
        <translation>Pida al proveedor de red un nombre inverso que lleve de vuelta a la misma dirección: sin él, muchos servidores rechazan el envío directo.</translation>
    </message>
    <message>
        <source>Il record dichiara la chiave ritirata (p= vuoto): pubblicare quella nuova.</source>
        <translation>El registro declara la clave retirada (p= vacío): publique la nueva.</translation>
    </message>
    <message>
        <source>Il record pubblicato è di un&apos;altra chiave, e le firme non valgono: pubblicare il record della chiave di questo programma.</source>
        <translation>El registro publicado es de otra clave y las firmas no valen: publique el registro de la clave de este programa.</translation>
    </message>
    <message>
        <source>Il record non ammette SHA-256: togliere il campo h=.</source>
        <translation>El registro no admite SHA-256: quite el campo h=.</translation>
    </message>
    <message>
        <source>Il record non vale per la posta: togliere il campo s=.</source>
        <translation>El registro no vale para el correo: quite el campo s=.</translation>
    </message>
    <message>
        <source>stretto</source>
        <translation>estricto</translation>
    </message>
    <message>
        <source>rilassato</source>
        <translation>relajado</translation>
    </message>
    <message>
        <source>allineato</source>
        <translation>alineado</translation>
    </message>
    <message>
        <source>non allineato</source>
        <translation>no alineado</translation>
    </message>
    <message>
        <source>Record di %1, p=%2 per questo dominio, %3 % dei messaggi</source>
        <translation>Registro de %1, p=%2 para este dominio, %3 % de los mensajes</translation>
    </message>
    <message>
        <source>SPF: %1 (%2)</source>
        <translation>SPF: %1 (%2)</translation>
    </message>
    <message>
        <source>non si può sapere</source>
        <translation>no se puede saber</translation>
    </message>
    <message>
        <source>passa</source>
        <translation>pasa</translation>
    </message>
    <message>
        <source>non passa</source>
        <translation>no pasa</translation>
    </message>
    <message>
        <source>DKIM: %1 (%2)</source>
        <translation>DKIM: %1 (%2)</translation>
    </message>
    <message>
        <source>Nessun rapporto richiesto</source>
        <translation>No se piden informes</translation>
    </message>
    <message>
        <source>Rapporti a %1</source>
        <translation>Informes a %1</translation>
    </message>
    <message>
        <source>Con p=%1 i messaggi sono %2, perché non passano né SPF né DKIM: correggere prima quelle righe.</source>
        <translation>Con p=%1 los mensajes son %2, porque no pasan ni SPF ni DKIM: corrija primero esas líneas.</translation>
    </message>
    <message>
        <source>rifiutati</source>
        <translation>rechazados</translation>
    </message>
    <message>
        <source>messi fra la posta indesiderata</source>
        <translation>enviados al correo no deseado</translation>
    </message>
    <message>
        <source>Se SPF passa non si può sapere da qui: firmare con DKIM, perché DMARC passi in ogni caso.</source>
        <translation>Desde aquí no se puede saber si SPF pasa: firme con DKIM para que DMARC pase en cualquier caso.</translation>
    </message>
    <message>
        <source>Il record osserva soltanto, e per ora non passano né SPF né DKIM: correggere quelle righe.</source>
        <translation>El registro solo observa, y por ahora no pasan ni SPF ni DKIM: corrija esas líneas.</translation>
    </message>
    <message>
        <source>Il record osserva soltanto (p=none): quando i rapporti sono buoni, passare a p=quarantine.</source>
        <translation>El registro solo observa (p=none): cuando los informes sean buenos, pase a p=quarantine.</translation>
    </message>
    <message>
        <source>Il record protegge il dominio, e i messaggi lo rispettano.</source>
        <translation>El registro protege el dominio y los mensajes lo cumplen.</translation>
    </message>
    <message>
        <source>I messaggi partono senza firma: creare una chiave DKIM e pubblicarne il record.</source>
        <translation>Los mensajes salen sin firma: cree una clave DKIM y publique su registro.</translation>
    </message>
    <message>
        <source>Il programma non firma i messaggi: se non lo fa il server del fornitore, creare una chiave DKIM e pubblicarne il record.</source>
        <translation>El programa no firma los mensajes: si no lo hace el servidor del proveedor, cree una clave DKIM y publique su registro.</translation>
    </message>
    <message>
        <source>Il record della chiave manca: pubblicarlo con il nome %1.</source>
        <translation>Falta el registro de la clave: publíquelo con el nombre %1.</translation>
    </message>
    <message>
        <source>Allo stesso nome ci sono più record: lasciarne uno solo.</source>
        <translation>Hay varios registros con el mismo nombre: deje solo uno.</translation>
    </message>
    <message>
        <source>Il record non è una chiave DKIM valida: copiarlo di nuovo, intero.</source>
        <translation>El registro no es una clave DKIM válida: cópielo de nuevo, entero.</translation>
    </message>
    <message>
        <source>La chiave è pubblicata in prova (t=y): togliere il campo quando tutto funziona.</source>
        <translation>La clave está publicada en prueba (t=y): quite el campo cuando todo funcione.</translation>
    </message>
    <message>
        <source>La chiave pubblicata è quella con cui il programma firma.</source>
        <translation>La clave publicada es aquella con la que firma el programa.</translation>
    </message>
    <message>
        <source>Pubblicare un record DMARC con il nome %1, per esempio &quot;v=DMARC1; p=none; rua=mailto:%2&quot;.</source>
        <translation>Publique un registro DMARC con el nombre %1, por ejemplo &quot;v=DMARC1; p=none; rua=mailto:%2&quot;.</translation>
    </message>
    <message>
        <source>%1 ha più di un record DMARC e nessuno vale: lasciarne uno solo.</source>
        <translation>%1 tiene más de un registro DMARC y ninguno vale: deje solo uno.</translation>
    </message>
    <message>
        <source>Il record DMARC di %1 non vale: manca il campo p= con none, quarantine o reject.</source>
        <translation>El registro DMARC de %1 no vale: falta el campo p= con none, quarantine o reject.</translation>
    </message>
    <message>
        <source>autorizzato</source>
        <translation>autorizado</translation>
    </message>
    <message>
        <source>vietato</source>
        <translation>prohibido</translation>
    </message>
    <message>
        <source>non autorizzato</source>
        <translation>no autorizado</translation>
    </message>
    <message>
        <source>né autorizzato né vietato</source>
        <translation>ni autorizado ni prohibido</translation>
    </message>
    <message>
        <source> da &quot;%1&quot; di %2</source>
        <translation> por &quot;%1&quot; de %2</translation>
    </message>
    <message>
        <source>, %1 ricerche su 10</source>
        <translation>, %1 búsquedas de 10</translation>
    </message>
    <message>
        <source>; il dominio dice: %1</source>
        <translation>; el dominio dice: %1</translation>
    </message>
    <message>
        <source>Pubblicare un record SPF che nomini l&apos;indirizzo di questo computer: senza, molti server non si fidano dei messaggi.</source>
        <translation>Publique un registro SPF que nombre la dirección de este ordenador: sin él, muchos servidores no se fían de los mensajes.</translation>
    </message>
    <message>
        <source>Pubblicare un record SPF con la riga che indica il fornitore del server: senza, molti server non si fidano dei messaggi.</source>
        <translation>Publique un registro SPF con la línea que indica el proveedor del servidor: sin él, muchos servidores no se fían de los mensajes.</translation>
    </message>
    <message>
        <source>%1 ha più di un record SPF e nessuno vale: unirli in uno solo.</source>
        <translation>%1 tiene más de un registro SPF y ninguno vale: únalos en uno solo.</translation>
    </message>
    <message>
        <source>Il record SPF di %1 è troppo lungo: accorciarlo.</source>
        <translation>El registro SPF de %1 es demasiado largo: acórtelo.</translation>
    </message>
    <message>
        <source>Il record SPF di %1 non vale per un errore in &quot;%2&quot;: correggerlo.</source>
        <translation>El registro SPF de %1 no vale por un error en &quot;%2&quot;: corríjalo.</translation>
    </message>
    <message>
        <source>Il record SPF richiede più di 10 ricerche nel DNS e non vale: togliere meccanismi, per esempio %1.</source>
        <translation>El registro SPF requiere más de 10 búsquedas en el DNS y no vale: quite mecanismos, por ejemplo %1.</translation>
    </message>
    <message>
        <source>Il record SPF di %1 nomina più di 2 domini senza record e non vale: togliere quelli che non esistono più, per esempio %2.</source>
        <translation>El registro SPF de %1 nombra más de 2 dominios sin registro y no vale: quite los que ya no existen, por ejemplo %2.</translation>
    </message>
    <message>
        <source>Nel record SPF di %1 &quot;%2&quot; porta a più di 10 server e non vale: indicare gli indirizzi con ip4 o ip6.</source>
        <translation>En el registro SPF de %1, &quot;%2&quot; lleva a más de 10 servidores y no vale: indique las direcciones con ip4 o ip6.</translation>
    </message>
    <message>
        <source>Nel record SPF di %1 &quot;%2&quot; porta a un dominio senza record SPF, e tutto il record non vale: toglierlo o correggerlo.</source>
        <translation>En el registro SPF de %1, &quot;%2&quot; lleva a un dominio sin registro SPF, y todo el registro no vale: quítelo o corríjalo.</translation>
    </message>
    <message>
        <source>Il record c&apos;è e si legge, ma l&apos;indirizzo pubblico di questo computer non si può conoscere da qui: verificare che il record lo nomini.</source>
        <translation>El registro existe y se puede leer, pero desde aquí no se puede conocer la dirección pública de este ordenador: compruebe que el registro la nombre.</translation>
    </message>
    <message>
        <source>Il record c&apos;è e si legge, ma il server non ha un indirizzo pubblico noto: chiedere al fornitore se è compreso nel record.</source>
        <translation>El registro existe y se puede leer, pero no se conoce una dirección pública del servidor: pregunte al proveedor si está incluida en el registro.</translation>
    </message>
    <message>
        <source>Il record autorizza l&apos;indirizzo di questo computer.</source>
        <translation>El registro autoriza la dirección de este ordenador.</translation>
    </message>
    <message>
        <source>Il record autorizza il server, per gli indirizzi che si conoscono.</source>
        <translation>El registro autoriza el servidor, en las direcciones que se conocen.</translation>
    </message>
    <message>
        <source>Il record non autorizza l&apos;indirizzo di questo computer: aggiungerlo con ip4 o ip6.</source>
        <translation>El registro no autoriza la dirección de este ordenador: añádala con ip4 o ip6.</translation>
    </message>
    <message>
        <source>Il record autorizza solo alcuni indirizzi del server: aggiungere gli altri, o verificare con il fornitore da quali spedisce.</source>
        <translation>El registro autoriza solo algunas direcciones del servidor: añada las otras o compruebe con el proveedor desde cuáles envía.</translation>
    </message>
    <message>
        <source>Il record non autorizza gli indirizzi noti del server: se il fornitore non spedisce da altri, aggiungere al record la riga che lui indica.</source>
        <translation>El registro no autoriza las direcciones conocidas del servidor: si el proveedor no envía desde otras, añada al registro la línea que él indica.</translation>
    </message>
    <message>
        <source>La tabella dei destinatari non ha tutte le sue colonne.</source>
        <translation>La tabla de destinatarios no tiene todas sus columnas.</translation>
    </message>
    <message>
        <source>Il messaggio non si può aprire: </source>
        <translation>No se puede abrir el mensaje: </translation>
    </message>
    <message>
        <source>Il file non contiene un messaggio intero: </source>
        <translation>El archivo no contiene un mensaje completo: </translation>
    </message>
    <message>
        <source>Tempo scaduto: il server non risponde.</source>
        <translation>Tiempo agotado: el servidor no responde.</translation>
    </message>
    <message>
        <source>Manca il nome del server.</source>
        <translation>Falta el nombre del servidor.</translation>
    </message>
    <message>
        <source>Il nome del server non è valido.</source>
        <translation>El nombre del servidor no es válido.</translation>
    </message>
    <message>
        <source>La porta del server non è valida.</source>
        <translation>El puerto del servidor no es válido.</translation>
    </message>
    <message>
        <source>Il portachiavi non ha dato la password di questo account.</source>
        <translation>El llavero no dio la contraseña de esta cuenta.</translation>
    </message>
    <message>
        <source>In ordine</source>
        <translation>En orden</translation>
    </message>
    <message>
        <source>Attenzione</source>
        <translation>Atención</translation>
    </message>
    <message>
        <source>Da correggere</source>
        <translation>Por corregir</translation>
    </message>
    <message>
        <source>In corso…</source>
        <translation>En curso…</translation>
    </message>
    <message>
        <source>Server raggiunto</source>
        <translation>Servidor alcanzado</translation>
    </message>
    <message>
        <source>Certificato</source>
        <translation>Certificado</translation>
    </message>
    <message>
        <source>Accesso</source>
        <translation>Acceso</translation>
    </message>
    <message>
        <source>Dimensione massima</source>
        <translation>Tamaño máximo</translation>
    </message>
    <message>
        <source>Non si è potuto provare: correggere prima le righe sopra.</source>
        <translation>No se pudo probar: corrija primero las líneas de arriba.</translation>
    </message>
    <message>
        <source>Il server risponde.</source>
        <translation>El servidor responde.</translation>
    </message>
    <message>
        <source>Verificare nome e porta del server nell&apos;account.</source>
        <translation>Compruebe el nombre y el puerto del servidor en la cuenta.</translation>
    </message>
    <message>
        <source>La connessione è protetta.</source>
        <translation>La conexión es segura.</translation>
    </message>
    <message>
        <source>Il server non offre una connessione protetta: usare la porta 587 o 465, o un altro server.</source>
        <translation>El servidor no ofrece una conexión segura: use el puerto 587 o 465, u otro servidor.</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <comment>form of a date</comment>
        <translation>d &apos;de&apos; MMMM &apos;de&apos; yyyy</translation>
    </message>
    <message>
        <source>Per: %1</source>
        <translation>Para: %1</translation>
    </message>
    <message>
        <source>Emesso da: %1</source>
        <translation>Emitido por: %1</translation>
    </message>
    <message>
        <source>Vale fino al %1</source>
        <translation>Válido hasta el %1</translation>
    </message>
    <message>
        <source>Il certificato è scaduto il %1: chi gestisce il server deve rinnovarlo.</source>
        <translation>El certificado caducó el %1: quien gestiona el servidor debe renovarlo.</translation>
    </message>
    <message>
        <source>Il certificato non è accettato: verificare il nome del server nell&apos;account, o chiedere a chi lo gestisce.</source>
        <translation>El certificado no se acepta: compruebe el nombre del servidor en la cuenta o pregunte a quien lo gestiona.</translation>
    </message>
    <message>
        <source>Il certificato scade il %1: chi gestisce il server deve rinnovarlo in tempo.</source>
        <translation>El certificado caduca el %1: quien gestiona el servidor debe renovarlo a tiempo.</translation>
    </message>
    <message>
        <source>Il certificato è valido fino al %1.</source>
        <translation>El certificado es válido hasta el %1.</translation>
    </message>
    <message>
        <source>L&apos;account non chiede l&apos;accesso.</source>
        <translation>La cuenta no pide acceso.</translation>
    </message>
    <message>
        <source>Il server accetta utente e password.</source>
        <translation>El servidor acepta usuario y contraseña.</translation>
    </message>
    <message>
        <source>Verificare utente e password nell&apos;account.</source>
        <translation>Compruebe el usuario y la contraseña en la cuenta.</translation>
    </message>
    <message>
        <source>Il server non dichiara un limite.</source>
        <translation>El servidor no declara ningún límite.</translation>
    </message>
    <message>
        <source>Il server accetta messaggi fino a %1: tenere piccoli gli allegati.</source>
        <translation>El servidor acepta mensajes de hasta %1: mantenga pequeños los adjuntos.</translation>
    </message>
    <message>
        <source>Il server accetta messaggi fino a %1.</source>
        <translation>El servidor acepta mensajes de hasta %1.</translation>
    </message>
    <message>
        <source>Grave</source>
        <translation>Grave</translation>
    </message>
    <message>
        <source>Consiglio</source>
        <translation>Consejo</translation>
    </message>
    <message>
        <source>%1 non viene sostituito: si scrive %2.</source>
        <translation>%1 no se sustituye: se escribe %2.</translation>
    </message>
    <message>
        <source>%1 non viene sostituito: nessuna colonna ha questo nome.</source>
        <translation>%1 no se sustituye: ninguna columna se llama así.</translation>
    </message>
    <message>
        <source>%1 non viene sostituito nella forma HTML: è spezzato da un cambio di formato. Riscriverlo tutto di seguito.</source>
        <translation>%1 no se sustituye en la forma HTML: lo parte un cambio de formato. Escríbalo de nuevo de corrido.</translation>
    </message>
    <message>
        <source>L&apos;allegato %1 non c&apos;è: il messaggio parte senza.</source>
        <translation>Falta el adjunto %1: el mensaje sale sin él.</translation>
    </message>
    <message>
        <source>L&apos;oggetto è vuoto.</source>
        <translation>El asunto está vacío.</translation>
    </message>
    <message>
        <source>Manca la forma di solo testo: il messaggio non contiene testo, e chi non vede le immagini non legge niente.</source>
        <translation>Falta la forma de solo texto: el mensaje no contiene texto, y quien no ve las imágenes no lee nada.</translation>
    </message>
    <message>
        <source>Manca un collegamento di disiscrizione: chi non vuole più messaggi li segnala come indesiderati. Si crea nell&apos;editor con il comando &quot;Collegamento&quot;.</source>
        <translation>Falta un enlace para darse de baja: quien no quiere más mensajes los marca como no deseados. Se crea en el editor con el comando &quot;Enlace&quot;.</translation>
    </message>
    <message>
        <source>%1 è vuoto per %2 di %3 destinatari selezionati</source>
        <translation>%1 está vacío para %2 de %3 destinatarios seleccionados</translation>
    </message>
    <message>
        <source>; per %1 di loro si legge %2 al posto del valore.</source>
        <translation>; para %1 de ellos se lee %2 en lugar del valor.</translation>
    </message>
    <message>
        <source>I caratteri &lt;, &amp; o &quot; di %1 cambiano il messaggio per %2 di %3 destinatari selezionati.</source>
        <translation>Los caracteres &lt;, &amp; o &quot; de %1 cambian el mensaje para %2 de %3 destinatarios seleccionados.</translation>
    </message>
    <message>
        <source>Il corpo è di %1: oltre 100 kB i grandi gestori di posta lo tagliano.</source>
        <translation>El cuerpo ocupa %1: los grandes proveedores de correo lo cortan a partir de 100 kB.</translation>
    </message>
    <message>
        <source>(senza indirizzo)</source>
        <translation>(sin dirección)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln immagini non ci sono</source>
        <translation>
            <numerusform>Falta una imagen</numerusform>
            <numerusform>Faltan %Ln imágenes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file non possono partire come immagini del messaggio</source>
        <translation>
            <numerusform>Un archivo no puede salir como imagen del mensaje</numerusform>
            <numerusform>%Ln archivos no pueden salir como imágenes del mensaje</numerusform>
        </translation>
    </message>
    <message>
        <source>(non è un&apos;immagine, o insieme superano 10 MB)</source>
        <translation>(no es una imagen, o juntos superan 10 MB)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln collegamenti non portano da nessuna parte</source>
        <translation>
            <numerusform>Un enlace no lleva a ninguna parte</numerusform>
            <numerusform>%Ln enlaces no llevan a ninguna parte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln immagini restano sul web</source>
        <translation>
            <numerusform>Una imagen queda en la web</numerusform>
            <numerusform>%Ln imágenes quedan en la web</numerusform>
        </translation>
    </message>
    <message>
        <source>Molti programmi di posta non le mostrano finché il destinatario non vuole.</source>
        <translation>Muchos programas de correo no las muestran hasta que el destinatario lo pide.</translation>
    </message>
    <message>
        <source>it</source>
        <comment>the ISO 639 code of this language</comment>
        <translation>es</translation>
    </message>
    <message>
        <source>In attesa del database, usato da un altro programma… Esc per rinunciare</source>
        <translation>Esperando la base de datos, en uso por otro programa… Esc para desistir</translation>
    </message>
    <message>
        <source>Ordine decrescente</source>
        <translation>Orden descendente</translation>
    </message>
    <message>
        <source>Ordine crescente</source>
        <translation>Orden ascendente</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; non contiene una disposizione valida delle barre.</source>
        <translation>El archivo &quot;%1&quot; no contiene una disposición válida de las barras.</translation>
    </message>
    <message>
        <source>Impossibile scrivere il file &quot;%1&quot;.</source>
        <translation>No se puede escribir el archivo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Impossibile leggere il file &quot;%1&quot;.</source>
        <translation>No se puede leer el archivo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Proprietà elemento</source>
        <translation>Propiedades del elemento</translation>
    </message>
    <message>
        <source>Attributo</source>
        <translation>Atributo</translation>
    </message>
    <message>
        <source>Valore</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Attributi</source>
        <translation>Atributos</translation>
    </message>
    <message>
        <source>&amp;Elemento:</source>
        <translation>E&amp;lemento:</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Annulla</source>
        <translation>Canc&amp;elar</translation>
    </message>
    <message>
        <source>Trova</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Solo sele&amp;zionati</source>
        <translation>Solo selecciona&amp;dos</translation>
    </message>
    <message>
        <source>T&amp;rova:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>Dove cercare</source>
        <translation>Dónde buscar</translation>
    </message>
    <message>
        <source>Precedente</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Trova precedente (Maiusc+Invio)</source>
        <translation>Buscar anterior (Mayús+Intro)</translation>
    </message>
    <message>
        <source>Successivo</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Trova successivo (Invio)</source>
        <translation>Buscar siguiente (Intro)</translation>
    </message>
    <message>
        <source>Chiudi</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Chiudi la barra (Esc)</source>
        <translation>Cerrar la barra (Esc)</translation>
    </message>
    <message>
        <source>&amp;Maiuscole e minuscole</source>
        <translation>&amp;Mayúsculas y minúsculas</translation>
    </message>
    <message>
        <source>&amp;Testo:</source>
        <translation>&amp;Texto:</translation>
    </message>
    <message>
        <source>Trova &amp;successivo</source>
        <translation>Buscar &amp;siguiente</translation>
    </message>
    <message>
        <source>Trova &amp;precedente</source>
        <translation>Buscar &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Chiudi</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Testo non trovato.</source>
        <translation>No se encontró el texto.</translation>
    </message>
    <message>
        <source>Elemento &quot;%1&quot; non trovato.</source>
        <translation>No se encontró el elemento &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>L&apos;elemento &quot;%1&quot; esiste già.</source>
        <translation>El elemento &quot;%1&quot; ya existe.</translation>
    </message>
    <message>
        <source>Un elemento non può essere spostato dentro sé stesso o i propri elementi.</source>
        <translation>Un elemento no puede moverse dentro de sí mismo ni de los suyos.</translation>
    </message>
    <message>
        <source>pixel o %</source>
        <translation>píxeles o %</translation>
    </message>
    <message>
        <source>Nessuno</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>A sinistra</source>
        <translation>A la izquierda</translation>
    </message>
    <message>
        <source>A destra</source>
        <translation>A la derecha</translation>
    </message>
    <message>
        <source>In alto</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Al centro</source>
        <translation>En el centro</translation>
    </message>
    <message>
        <source>In basso</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Immagine</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>S&amp;foglia...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>&amp;File o indirizzo:</source>
        <translation>A&amp;rchivo o dirección:</translation>
    </message>
    <message>
        <source>File o indirizzo</source>
        <translation>Archivo o dirección</translation>
    </message>
    <message>
        <source>&amp;Testo alternativo:</source>
        <translation>&amp;Texto alternativo:</translation>
    </message>
    <message>
        <source>&amp;Larghezza:</source>
        <translation>An&amp;cho:</translation>
    </message>
    <message>
        <source>A&amp;ltezza:</source>
        <translation>A&amp;lto:</translation>
    </message>
    <message>
        <source>Alli&amp;neamento:</source>
        <translation>Ali&amp;neación:</translation>
    </message>
    <message>
        <source>Inserisci immagine</source>
        <translation>Insertar imagen</translation>
    </message>
    <message>
        <source>Immagini|*.png;*.jpg;*.jpeg;*.gif;*.bmp;*.webp|Tutti i file|*</source>
        <translation>Imágenes|*.png;*.jpg;*.jpeg;*.gif;*.bmp;*.webp|Todos los archivos|*</translation>
    </message>
    <message>
        <source>Indirizzo web</source>
        <translation>Dirección web</translation>
    </message>
    <message>
        <source>Posta elettronica</source>
        <translation>Correo electrónico</translation>
    </message>
    <message>
        <source>Collegamento di &amp;disiscrizione</source>
        <translation>Enlace para &amp;darse de baja</translation>
    </message>
    <message>
        <source>Collegamento</source>
        <translation>Enlace</translation>
    </message>
    <message>
        <source>I programmi di posta lo offrono al destinatario per disiscriversi con un clic</source>
        <translation>Los programas de correo lo ofrecen al destinatario para darse de baja con un clic</translation>
    </message>
    <message>
        <source>Inserisci nell&apos;indirizzo...</source>
        <translation>Insertar en la dirección...</translation>
    </message>
    <message>
        <source>&amp;Tipo:</source>
        <translation>&amp;Tipo:</translation>
    </message>
    <message>
        <source>&amp;Indirizzo:</source>
        <translation>D&amp;irección:</translation>
    </message>
    <message>
        <source>&amp;Variabile:</source>
        <translation>&amp;Variable:</translation>
    </message>
    <message>
        <source>T&amp;esto:</source>
        <translation>Te&amp;xto:</translation>
    </message>
    <message>
        <source>Ri&amp;muovi</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>&amp;Riavvia</source>
        <translation>&amp;Reiniciar</translation>
    </message>
    <message>
        <source>Ctrl+Tab inserisce una tabulazione</source>
        <translation>Ctrl+Tab inserta una tabulación</translation>
    </message>
    <message>
        <source>Contiene una tabulazione</source>
        <translation>Contiene una tabulación</translation>
    </message>
    <message>
        <source>Viste</source>
        <translation>Vistas</translation>
    </message>
    <message>
        <source>Gli account non sono stati salvati:<byte value="xd"/>
il file Account.imp appartiene a un altro utente, che potrebbe leggere le password.</source>
        <translation>Las cuentas no se han guardado:<byte value="xd"/>
el archivo Account.imp pertenece a otro usuario, que podría leer las contraseñas.</translation>
    </message>
    <message>
        <source>Il file degli account non può contenere questi caratteri:</source>
        <translation>El archivo de cuentas no admite estos caracteres:</translation>
    </message>
    <message>
        <source>In attesa del portachiavi… Esc per rinunciare</source>
        <translation>Esperando el llavero… Esc para desistir</translation>
    </message>
    <message>
        <source>Conserva la password nel portachiavi del desktop.</source>
        <translation>Guardar la contraseña en el llavero del escritorio.</translation>
    </message>
    <message>
        <source>In attesa del browser: annulla l&apos;accesso</source>
        <translation>Esperando el navegador: cancelar el acceso</translation>
    </message>
    <message>
        <source>Accedi con il browser...</source>
        <translation>Acceder con el navegador...</translation>
    </message>
    <message>
        <source>Per accedere con il browser scrivere prima lo username, di solito l&apos;indirizzo email.</source>
        <translation>Para acceder con el navegador escriba primero el usuario, normalmente la dirección de correo.</translation>
    </message>
    <message>
        <source>Accesso riuscito. Salvare ora l&apos;account con &quot;Nuovo Account&quot; o &quot;Modifica Account&quot;.</source>
        <translation>Acceso correcto. Guarde ahora la cuenta con &quot;Nueva cuenta&quot; o &quot;Modificar cuenta&quot;.</translation>
    </message>
    <message>
        <source>Nessun account: compilare e premere Nuovo Account</source>
        <translation>Ninguna cuenta: rellene y pulse Nueva cuenta</translation>
    </message>
    <message>
        <source>Allegato</source>
        <translation>Adjunto</translation>
    </message>
    <message>
        <source>Cartella nascosta o fuori da quella personale</source>
        <translation>Carpeta oculta o fuera de la personal</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Dimensione</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Tipo</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Nota</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Operazione: </source>
        <translation>Operación: </translation>
    </message>
    <message>
        <source>Finestra: </source>
        <translation>Ventana: </translation>
    </message>
    <message>
        <source>File: </source>
        <translation>Archivo: </translation>
    </message>
    <message>
        <source>Il programma viene chiuso</source>
        <translation>El programa se cierra</translation>
    </message>
    <message>
        <source>&amp;Prova messaggio...</source>
        <translation>&amp;Prueba del mensaje...</translation>
    </message>
    <message>
        <source>Il messaggio come lo riceve un destinatario</source>
        <translation>El mensaje como lo recibe un destinatario</translation>
    </message>
    <message>
        <source>Controllo del &amp;mittente...</source>
        <translation>Control del &amp;remitente...</translation>
    </message>
    <message>
        <source>Come i server dei destinatari vedono il dominio e il server di un account</source>
        <translation>Cómo ven los servidores de los destinatarios el dominio y el servidor de una cuenta</translation>
    </message>
    <message>
        <source>&amp;Esito degli invii...</source>
        <translation>R&amp;esultado de los envíos...</translation>
    </message>
    <message>
        <source>Chi ha ricevuto i messaggi, chi no e perché</source>
        <translation>Quién recibió los mensajes, quién no y por qué</translation>
    </message>
    <message>
        <source>&amp;Trova destinatari...</source>
        <translation>&amp;Buscar destinatarios...</translation>
    </message>
    <message>
        <source>Trova destinatari nella cartella o ovunque</source>
        <translation>Buscar destinatarios en la carpeta o en todas partes</translation>
    </message>
    <message>
        <source>&amp;Ordina per la colonna corrente</source>
        <translation>&amp;Ordenar por la columna actual</translation>
    </message>
    <message>
        <source>Ordina l&apos;elenco per la colonna corrente; la terza volta torna l&apos;ordine di prima</source>
        <translation>Ordena la lista por la columna actual; a la tercera vez vuelve el orden anterior</translation>
    </message>
    <message>
        <source>&amp;Indirizzi doppi...</source>
        <translation>&amp;Direcciones duplicadas...</translation>
    </message>
    <message>
        <source>Trova gli indirizzi selezionati più di una volta</source>
        <translation>Busca las direcciones seleccionadas más de una vez</translation>
    </message>
    <message>
        <source>Recupera &amp;cartelle perdute...</source>
        <translation>Recuperar &amp;carpetas perdidas...</translation>
    </message>
    <message>
        <source>Riporta sotto la radice cartelle e destinatari che l&apos;albero non mostra</source>
        <translation>Devuelve bajo la raíz carpetas y destinatarios que el árbol no muestra</translation>
    </message>
    <message>
        <source>&amp;Ultima importazione...</source>
        <translation>&amp;Última importación...</translation>
    </message>
    <message>
        <source>Righe importate e rifiutate dall&apos;ultima importazione</source>
        <translation>Filas importadas y rechazadas en la última importación</translation>
    </message>
    <message>
        <source>Il record non si legge</source>
        <translation>No se puede leer el registro</translation>
    </message>
    <message>
        <source>tabella &quot;%1&quot; di %2</source>
        <translation>tabla &quot;%1&quot; de %2</translation>
    </message>
    <message>
        <source>Importazione da file di testo</source>
        <translation>Importación de un archivo de texto</translation>
    </message>
    <message>
        <source>L&apos;indirizzo ha meno di %1 caratteri</source>
        <translation>La dirección tiene menos de %1 caracteres</translation>
    </message>
    <message>
        <source>Lettura dei contatti di Outlook in corso… Esc per interrompere</source>
        <translation>Leyendo los contactos de Outlook… Esc para interrumpir</translation>
    </message>
    <message>
        <source>file</source>
        <translation>archivos</translation>
    </message>
    <message>
        <source>chiamate di sistema</source>
        <translation>llamadas al sistema</translation>
    </message>
    <message>
        <source>memoria</source>
        <translation>memoria</translation>
    </message>
    <message>
        <source>Outlook letto senza queste protezioni del sistema: </source>
        <translation>Outlook leído sin estas protecciones del sistema: </translation>
    </message>
    <message>
        <source>contatti di Outlook</source>
        <translation>contactos de Outlook</translation>
    </message>
    <message>
        <source>Non è un contatto</source>
        <translation>No es un contacto</translation>
    </message>
    <message>
        <source>rubrica</source>
        <translation>libreta de direcciones</translation>
    </message>
    <message>
        <source>obbligatorio</source>
        <translation>obligatorio</translation>
    </message>
    <message>
        <source>Nessun allegato</source>
        <translation>Ningún adjunto</translation>
    </message>
    <message>
        <source>Variabile oggetto non impostata</source>
        <translation>Variable de objeto no establecida</translation>
    </message>
    <message>
        <source>Colore del testo</source>
        <translation>Color del texto</translation>
    </message>
    <message>
        <source>Messaggio</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>Origine del messaggio</source>
        <translation>Código del mensaje</translation>
    </message>
    <message>
        <source>Anteprima del messaggio</source>
        <translation>Vista previa del mensaje</translation>
    </message>
    <message>
        <source>Il messaggio non è stato stampato.</source>
        <translation>El mensaje no se ha imprimido.</translation>
    </message>
    <message>
        <source>Riprova fra qualche istante.</source>
        <translation>Vuelva a intentarlo dentro de un momento.</translation>
    </message>
    <message>
        <source>Il testo incollato nominava file di questo computer, che sarebbero partiti con il messaggio. Sono stati lasciati fuori:</source>
        <translation>El texto pegado nombraba archivos de este ordenador, que habrían salido con el mensaje. Se han dejado fuera:</translation>
    </message>
    <message numerus="yes">
        <source>e altri %n</source>
        <translation>
            <numerusform>y %n más</numerusform>
            <numerusform>y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>Per mettere un&apos;immagine nel messaggio usa &quot;Inserisci immagine&quot;.</source>
        <translation>Para poner una imagen en el mensaje use &quot;Insertar imagen&quot;.</translation>
    </message>
    <message numerus="yes">
        <source>Nel testo incollato %n elementi restano sul web</source>
        <translation>
            <numerusform>En el texto pegado %n elemento queda en la web</numerusform>
            <numerusform>En el texto pegado %n elementos quedan en la web</numerusform>
        </translation>
    </message>
    <message>
        <source>Il testo resta nell&apos;origine, il messaggio è quello di prima.</source>
        <translation>El texto queda en el código, el mensaje es el de antes.</translation>
    </message>
    <message>
        <source>Il file del messaggio non può contenere questi caratteri, al loro posto c&apos;è &quot;?&quot;:</source>
        <translation>El archivo del mensaje no admite estos caracteres, en su lugar hay &quot;?&quot;:</translation>
    </message>
    <message>
        <source>Oggetto: </source>
        <translation>Asunto: </translation>
    </message>
    <message>
        <source>Percorsi degli allegati: </source>
        <translation>Rutas de los adjuntos: </translation>
    </message>
    <message>
        <source>Questi allegati non saranno trovati: rinomina i file.</source>
        <translation>Estos adjuntos no se encontrarán: cambie el nombre de los archivos.</translation>
    </message>
    <message>
        <source>Il messaggio è stato salvato, ma così non si potrà né aprire né inviare.</source>
        <translation>El mensaje se ha guardado, pero así no se podrá abrir ni enviar.</translation>
    </message>
    <message>
        <source>Il messaggio non è stato salvato: riprova fra qualche istante.</source>
        <translation>El mensaje no se ha guardado: vuelva a intentarlo dentro de un momento.</translation>
    </message>
    <message>
        <source>Il messaggio non è stato salvato in %1:</source>
        <translation>El mensaje no se ha guardado en %1:</translation>
    </message>
    <message>
        <source>Salvalo con un altro nome.</source>
        <translation>Guárdelo con otro nombre.</translation>
    </message>
    <message>
        <source>Il messaggio nella finestra resta quello di prima.</source>
        <translation>El mensaje de la ventana sigue siendo el de antes.</translation>
    </message>
    <message>
        <source>Una copia di recupero è danneggiata e non si può leggere.<byte value="xd"/>
Il file resta in </source>
        <translation>Una copia de recuperación está dañada y no se puede leer.<byte value="xd"/>
El archivo queda en </translation>
    </message>
    <message>
        <source>Il messaggio %1 non è stato salvato prima della fine del programma.<byte value="xd"/>
Oggetto: %2<byte value="xd"/>
Ultima modifica: %3<byte value="xd"/>
Vuoi recuperarlo?</source>
        <translation>El mensaje %1 no se guardó antes del final del programa.<byte value="xd"/>
Asunto: %2<byte value="xd"/>
Última modificación: %3<byte value="xd"/>
¿Quiere recuperarlo?</translation>
    </message>
    <message>
        <source>Il testo recuperato è nell&apos;origine.</source>
        <translation>El texto recuperado está en el código.</translation>
    </message>
    <message>
        <source>Proprietà del messaggio</source>
        <translation>Propiedades del mensaje</translation>
    </message>
    <message>
        <source>Margine sinistro della pagina, in pixel</source>
        <translation>Margen izquierdo de la página, en píxeles</translation>
    </message>
    <message>
        <source>Margine superiore della pagina, in pixel</source>
        <translation>Margen superior de la página, en píxeles</translation>
    </message>
    <message>
        <source>Margine orizzontale per altri programmi di posta, in pixel</source>
        <translation>Margen horizontal para otros programas de correo, en píxeles</translation>
    </message>
    <message>
        <source>Margine verticale per altri programmi di posta, in pixel</source>
        <translation>Margen vertical para otros programas de correo, en píxeles</translation>
    </message>
    <message>
        <source>Colore di sfondo della pagina</source>
        <translation>Color de fondo de la página</translation>
    </message>
    <message>
        <source>Colore dei collegamenti</source>
        <translation>Color de los enlaces</translation>
    </message>
    <message>
        <source>Colore dei collegamenti mentre si premono</source>
        <translation>Color de los enlaces mientras se pulsan</translation>
    </message>
    <message>
        <source>Colore dei collegamenti già visitati</source>
        <translation>Color de los enlaces visitados</translation>
    </message>
    <message>
        <source>Percorso o indirizzo dell&apos;immagine di sfondo</source>
        <translation>Ruta o dirección de la imagen de fondo</translation>
    </message>
    <message>
        <source>Il file degli invii già accettati era danneggiato ed è stato messo da parte:</source>
        <translation>El archivo de los envíos ya aceptados estaba dañado y se ha apartado:</translation>
    </message>
    <message>
        <source>Chi vi era ricordato potrebbe ricevere il messaggio una seconda volta.</source>
        <translation>Quienes constaban en él podrían recibir el mensaje por segunda vez.</translation>
    </message>
    <message>
        <source>Sfoglia il messaggio</source>
        <translation>Examinar el mensaje</translation>
    </message>
    <message>
        <source>Invio terminato</source>
        <translation>Envío terminado</translation>
    </message>
    <message>
        <source>Nessun messaggio è stato scelto.</source>
        <translation>No se ha elegido ningún mensaje.</translation>
    </message>
    <message>
        <source>Il messaggio scelto resta </source>
        <translation>El mensaje elegido sigue siendo </translation>
    </message>
    <message>
        <source>Ogni destinatario riceverà, insieme al messaggio, questi file di questo computer.<byte value="xd"/>
Vuoi inviarli?</source>
        <translation>Cada destinatario recibirá, junto con el mensaje, estos archivos de este ordenador.<byte value="xd"/>
¿Quiere enviarlos?</translation>
    </message>
    <message>
        <source>Non chiederlo &amp;più per questo messaggio</source>
        <translation>No &amp;volver a preguntar para este mensaje</translation>
    </message>
    <message>
        <source>Il file per l&apos;assistenza non si può scrivere:</source>
        <translation>No se puede escribir el archivo para soporte:</translation>
    </message>
    <message>
        <source>L&apos;invio prosegue senza.</source>
        <translation>El envío continúa sin él.</translation>
    </message>
    <message>
        <source>Un&apos;altra finestra di Vestrola sta inviando ai destinatari di questo database.<byte value="xd"/>
Riprovare quando avrà finito.</source>
        <translation>Otra ventana de Vestrola está enviando a los destinatarios de esta base de datos.<byte value="xd"/>
Vuelva a intentarlo cuando haya terminado.</translation>
    </message>
    <message>
        <source>Alcuni destinatari sono già stati serviti, ma non è possibile toglierli dalla selezione:</source>
        <translation>Algunos destinatarios ya se atendieron, pero no es posible quitarlos de la selección:</translation>
    </message>
    <message>
        <source>L&apos;invio non è iniziato. Riprovare più tardi.</source>
        <translation>El envío no ha empezado. Vuelva a intentarlo más tarde.</translation>
    </message>
    <message>
        <source>Il disco del database è pieno. Chi riceve il messaggio resta selezionato finché non c&apos;è di nuovo posto, ma non lo riceve una seconda volta.</source>
        <translation>El disco de la base de datos está lleno. Quien recibe el mensaje sigue seleccionado hasta que haya sitio de nuevo, pero no lo recibe por segunda vez.</translation>
    </message>
    <message>
        <source>L&apos;invio non è iniziato.</source>
        <translation>El envío no ha empezado.</translation>
    </message>
    <message>
        <source>Se il database non potrà essere aggiornato, non tutti i destinatari saranno serviti.</source>
        <translation>Si la base de datos no se puede actualizar, no se atenderá a todos los destinatarios.</translation>
    </message>
    <message>
        <source>I messaggi di questo invio partono senza firma.</source>
        <translation>Los mensajes de este envío salen sin firma.</translation>
    </message>
    <message>
        <source>meno di un minuto</source>
        <translation>menos de un minuto</translation>
    </message>
    <message numerus="yes">
        <source>circa %n minuti</source>
        <translation>
            <numerusform>alrededor de un minuto</numerusform>
            <numerusform>unos %n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>circa %n ore</source>
        <translation>
            <numerusform>alrededor de una hora</numerusform>
            <numerusform>unas %n horas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>circa %n ore e %1 min</source>
        <translation>
            <numerusform>alrededor de una hora y %1 min</numerusform>
            <numerusform>unas %n horas y %1 min</numerusform>
        </translation>
    </message>
    <message>
        <source>Tempo rimanente: %1</source>
        <translation>Tiempo restante: %1</translation>
    </message>
    <message>
        <source>Il registro degli esiti non si può scrivere. %1</source>
        <translation>No se puede escribir el registro de resultados. %1</translation>
    </message>
    <message>
        <source>Ultima non inviata: %1</source>
        <translation>Último no enviado: %1</translation>
    </message>
    <message>
        <source>Per chiudere: Esc o un clic</source>
        <translation>Para cerrar: Esc o un clic</translation>
    </message>
    <message>
        <source>Scegliere una cartella</source>
        <translation>Elija una carpeta</translation>
    </message>
    <message>
        <source>Chiusura del programma</source>
        <translation>Cierre del programa</translation>
    </message>
    <message>
        <source>&amp;Strumenti</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>Strumenti</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Avanzamento</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Copia di </source>
        <translation>Copia de </translation>
    </message>
    <message>
        <source>Il destinatario è compreso nel prossimo invio</source>
        <translation>El destinatario forma parte del próximo envío</translation>
    </message>
    <message>
        <source>Ragione sociale (max %1 caratteri)</source>
        <translation>Empresa (máx. %1 caracteres)</translation>
    </message>
    <message>
        <source>Nome e/o cognome (max %1 caratteri)</source>
        <translation>Nombre y/o apellidos (máx. %1 caracteres)</translation>
    </message>
    <message>
        <source>Partita Iva o codice fiscale (max %1 caratteri)</source>
        <translation>NIF o CIF (máx. %1 caracteres)</translation>
    </message>
    <message>
        <source>Via e numero civico (max %1 caratteri)</source>
        <translation>Calle y número (máx. %1 caracteres)</translation>
    </message>
    <message>
        <source>Codice di avviamento postale (max %1 caratteri)</source>
        <translation>Código postal (máx. %1 caracteres)</translation>
    </message>
    <message>
        <source>Località (max %1 caratteri)</source>
        <translation>Localidad (máx. %1 caracteres)</translation>
    </message>
    <message>
        <source>Numero di telefono (max %1 caratteri)</source>
        <translation>Número de teléfono (máx. %1 caracteres)</translation>
    </message>
    <message>
        <source>Numero di fax (max %1 caratteri)</source>
        <translation>Número de fax (máx. %1 caracteres)</translation>
    </message>
    <message>
        <source>Nuova cartella: tasto destro sulla radice</source>
        <translation>Carpeta nueva: botón derecho en la raíz</translation>
    </message>
    <message numerus="yes">
        <source>%Ln destinatari</source>
        <translation>
            <numerusform>%Ln destinatario</numerusform>
            <numerusform>%Ln destinatarios</numerusform>
        </translation>
    </message>
    <message>
        <source>Destinatario da spostare: %1. Ctrl+V su una cartella lo sposta</source>
        <translation>Destinatario que mover: %1. Ctrl+V en una carpeta lo mueve</translation>
    </message>
    <message>
        <source>Cartella da spostare: %1. Ctrl+V su un&apos;altra cartella la sposta</source>
        <translation>Carpeta que mover: %1. Ctrl+V en otra carpeta la mueve</translation>
    </message>
    <message>
        <source>Destinatario spostato in %1</source>
        <translation>Destinatario movido a %1</translation>
    </message>
    <message>
        <source>Cartella spostata in %1</source>
        <translation>Carpeta movida a %1</translation>
    </message>
    <message>
        <source>La cartella non può essere spostata in %1</source>
        <translation>La carpeta no se puede mover a %1</translation>
    </message>
    <message>
        <source>Nessun destinatario in questa cartella</source>
        <translation>Ningún destinatario en esta carpeta</translation>
    </message>
    <message>
        <source>Ordine dell&apos;elenco</source>
        <translation>Orden de la lista</translation>
    </message>
    <message>
        <source>Ordinati per %1, crescente</source>
        <translation>Ordenados por %1, ascendente</translation>
    </message>
    <message>
        <source>Ordinati per %1, decrescente</source>
        <translation>Ordenados por %1, descendente</translation>
    </message>
    <message>
        <source>Impossibile leggere i destinatari di questa cartella</source>
        <translation>No se pueden leer los destinatarios de esta carpeta</translation>
    </message>
    <message>
        <source>Fai clic sulla cartella per vedere i destinatari</source>
        <translation>Haga clic en la carpeta para ver los destinatarios</translation>
    </message>
    <message>
        <source>In questa cartella</source>
        <translation>En esta carpeta</translation>
    </message>
    <message>
        <source>Ovunque</source>
        <translation>En todas partes</translation>
    </message>
    <message>
        <source>Ricerca non riuscita: %1</source>
        <translation>La búsqueda falló: %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln trovati, ricerca in corso…</source>
        <translation>
            <numerusform>%Ln encontrado, buscando…</numerusform>
            <numerusform>%Ln encontrados, buscando…</numerusform>
        </translation>
    </message>
    <message>
        <source>Nessun risultato</source>
        <translation>Ningún resultado</translation>
    </message>
    <message>
        <source>%1 di %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln trovati</source>
        <translation>
            <numerusform>%Ln encontrado</numerusform>
            <numerusform>%Ln encontrados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln cartelle</source>
        <translation>
            <numerusform>%1 en %Ln carpeta</numerusform>
            <numerusform>%1 en %Ln carpetas</numerusform>
        </translation>
    </message>
    <message>
        <source>, %1 in cartelle perdute</source>
        <translation>, %1 en carpetas perdidas</translation>
    </message>
    <message>
        <source>; qui %1</source>
        <translation>; aquí %1</translation>
    </message>
    <message>
        <source>Recupera cartelle perdute</source>
        <translation>Recuperar carpetas perdidas</translation>
    </message>
    <message>
        <source>Cartella</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Destinatari</source>
        <translation>Destinatarios</translation>
    </message>
    <message>
        <source>Perché non si vede</source>
        <translation>Por qué no se ve</translation>
    </message>
    <message>
        <source>L&apos;albero non mostra %1 e %2.<byte value="xd"/>
Portarli sotto &quot;Database Mailing&quot;?</source>
        <translation>El árbol no muestra %1 y %2.<byte value="xd"/>
¿Llevarlos bajo &quot;Database Mailing&quot;?</translation>
    </message>
    <message numerus="yes">
        <source>%Ln cartelle</source>
        <translation>
            <numerusform>%Ln carpeta</numerusform>
            <numerusform>%Ln carpetas</numerusform>
        </translation>
    </message>
    <message>
        <source>L&apos;elenco mostra le prime %1 righe.</source>
        <translation>La lista muestra las primeras %1 filas.</translation>
    </message>
    <message>
        <source>Nessuna cartella è perduta: l&apos;albero le mostra tutte.</source>
        <translation>No hay carpetas perdidas: el árbol las muestra todas.</translation>
    </message>
    <message>
        <source>Impossibile recuperare tutte le cartelle.</source>
        <translation>No se pudieron recuperar todas las carpetas.</translation>
    </message>
    <message>
        <source> Chiave DKIM di %1</source>
        <translation> Clave DKIM de %1</translation>
    </message>
    <message>
        <source>La chiave è stata creata. Pubblicare nel DNS del dominio un record TXT con questo nome e questo valore, poi premere Controlla.</source>
        <translation>La clave se ha creado. Publique en el DNS del dominio un registro TXT con este nombre y este valor, y pulse después Comprobar.</translation>
    </message>
    <message>
        <source>Il dominio ha già una chiave, che resta com&apos;è. Questo è il record TXT da pubblicare nel suo DNS.</source>
        <translation>El dominio ya tiene una clave, que queda como está. Este es el registro TXT que hay que publicar en su DNS.</translation>
    </message>
    <message>
        <source>Selettore:</source>
        <translation>Selector:</translation>
    </message>
    <message>
        <source>Nome del record:</source>
        <translation>Nombre del registro:</translation>
    </message>
    <message>
        <source>Valore:</source>
        <translation>Valor:</translation>
    </message>
    <message>
        <source>Riga per un file di zona:</source>
        <translation>Línea para un archivo de zona:</translation>
    </message>
    <message>
        <source>Copia &amp;nome</source>
        <translation>Copiar &amp;nombre</translation>
    </message>
    <message>
        <source>Il nome è negli appunti.</source>
        <translation>El nombre está en el portapapeles.</translation>
    </message>
    <message>
        <source>Copia &amp;valore</source>
        <translation>Copiar &amp;valor</translation>
    </message>
    <message>
        <source>Il valore è negli appunti.</source>
        <translation>El valor está en el portapapeles.</translation>
    </message>
    <message>
        <source>Copia riga di &amp;zona</source>
        <translation>Copiar línea de &amp;zona</translation>
    </message>
    <message>
        <source>La riga è negli appunti.</source>
        <translation>La línea está en el portapapeles.</translation>
    </message>
    <message>
        <source> Controllo del mittente</source>
        <translation> Control del remitente</translation>
    </message>
    <message>
        <source>Nessun account: crearne uno con File, Imposta Account.</source>
        <translation>Ninguna cuenta: cree una con Archivo, Configurar cuentas.</translation>
    </message>
    <message>
        <source>Il file degli account è danneggiato: si vedono solo quelli prima del guasto.</source>
        <translation>El archivo de cuentas está dañado: solo se ven las anteriores al daño.</translation>
    </message>
    <message>
        <source>Scegliere un account e premere Controlla.</source>
        <translation>Elija una cuenta y pulse Comprobar.</translation>
    </message>
    <message>
        <source>Controllo in corso… Esc per interrompere.</source>
        <translation>Control en curso… Esc para interrumpir.</translation>
    </message>
    <message>
        <source>Interrotto</source>
        <translation>Interrumpido</translation>
    </message>
    <message numerus="yes">
        <source>%n righe</source>
        <translation>
            <numerusform>%n línea</numerusform>
            <numerusform>%n líneas</numerusform>
        </translation>
    </message>
    <message>
        <source>Controllo finito: tutto in ordine.</source>
        <translation>Control terminado: todo en orden.</translation>
    </message>
    <message>
        <source>Controllo finito: %1 da correggere, %2 con attenzione.</source>
        <translation>Control terminado: %1 por corregir, %2 con atención.</translation>
    </message>
    <message>
        <source>Controllo interrotto.</source>
        <translation>Control interrumpido.</translation>
    </message>
    <message>
        <source>L&apos;indirizzo email dell&apos;account non è valido.</source>
        <translation>La dirección de correo de la cuenta no es válida.</translation>
    </message>
    <message>
        <source>Creare una chiave DKIM per %1?<byte value="xd"/>
Da quel momento i messaggi di questo dominio vengono firmati; la firma vale quando il suo record è pubblicato.</source>
        <translation>¿Crear una clave DKIM para %1?<byte value="xd"/>
Desde ese momento se firman los mensajes de este dominio; la firma vale cuando su registro está publicado.</translation>
    </message>
    <message>
        <source>Chiave DKIM</source>
        <translation>Clave DKIM</translation>
    </message>
    <message>
        <source>I file della chiave non sono stati cambiati.</source>
        <translation>Los archivos de la clave no se han cambiado.</translation>
    </message>
    <message>
        <source>Il rapporto è negli appunti.</source>
        <translation>El informe está en el portapapeles.</translation>
    </message>
    <message>
        <source>&amp;Account mittente:</source>
        <translation>Cuenta &amp;remitente:</translation>
    </message>
    <message>
        <source>C&amp;ontrolla</source>
        <translation>Com&amp;probar</translation>
    </message>
    <message>
        <source>&amp;Interrompi</source>
        <translation>&amp;Interrumpir</translation>
    </message>
    <message>
        <source>Controllo</source>
        <translation>Control</translation>
    </message>
    <message>
        <source>Che cosa fare</source>
        <translation>Qué hacer</translation>
    </message>
    <message>
        <source>Righe del controllo</source>
        <translation>Líneas del control</translation>
    </message>
    <message>
        <source>D&amp;ettagli:</source>
        <translation>&amp;Detalles:</translation>
    </message>
    <message>
        <source>Crea chiave &amp;DKIM...</source>
        <translation>Crear clave D&amp;KIM...</translation>
    </message>
    <message>
        <source>Copia &amp;tutto</source>
        <translation>Copiar &amp;todo</translation>
    </message>
    <message>
        <source>Crea la chiave con cui firmare i messaggi, o mostra quella che c&apos;è</source>
        <translation>Crea la clave con la que firmar los mensajes, o muestra la que hay</translation>
    </message>
    <message>
        <source>database </source>
        <translation>base de datos </translation>
    </message>
    <message>
        <source> Esito degli invii</source>
        <translation> Resultado de los envíos</translation>
    </message>
    <message>
        <source>Invio</source>
        <translation>Envío</translation>
    </message>
    <message>
        <source>&amp;Elimina</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Elimina &amp;tutti</source>
        <translation>Eliminar t&amp;odos</translation>
    </message>
    <message>
        <source>Indirizzo o risposta</source>
        <translation>Dirección o respuesta</translation>
    </message>
    <message>
        <source>Destinatari dell&apos;invio</source>
        <translation>Destinatarios del envío</translation>
    </message>
    <message>
        <source>&amp;Registra l&apos;esito dei prossimi invii</source>
        <translation>&amp;Registrar el resultado de los próximos envíos</translation>
    </message>
    <message>
        <source>Restano gli ultimi 50 invii, nella cartella &quot;esiti&quot; dei dati del programma</source>
        <translation>Se conservan los últimos 50 envíos, en la carpeta &quot;esiti&quot; de los datos del programa</translation>
    </message>
    <message>
        <source>&amp;Seleziona questi per il prossimo invio</source>
        <translation>&amp;Seleccionar estos para el próximo envío</translation>
    </message>
    <message>
        <source>C&amp;opia</source>
        <translation>Co&amp;piar</translation>
    </message>
    <message>
        <source>Sal&amp;va CSV...</source>
        <translation>&amp;Guardar CSV...</translation>
    </message>
    <message>
        <source>&amp;Deseleziona gli indirizzi inesistenti</source>
        <translation>&amp;Deseleccionar las direcciones inexistentes</translation>
    </message>
    <message>
        <source>Quelli che il server del destinatario ha rifiutato come inesistenti
(codici 5.1.1, 5.1.2, 5.1.3, 5.1.6 e 5.1.10)</source>
        <translation>Las que el servidor del destinatario rechazó por inexistentes
(códigos 5.1.1, 5.1.2, 5.1.3, 5.1.6 y 5.1.10)</translation>
    </message>
    <message>
        <source>I&amp;nvio:</source>
        <translation>En&amp;vío:</translation>
    </message>
    <message>
        <source>Es&amp;ito:</source>
        <translation>Resul&amp;tado:</translation>
    </message>
    <message>
        <source>&amp;Motivo:</source>
        <translation>&amp;Motivo:</translation>
    </message>
    <message>
        <source>Trov&amp;a:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>Tutti</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Nessun invio registrato. L&apos;esito di ogni destinatario compare qui dopo il prossimo invio.</source>
        <translation>Ningún envío registrado. El resultado de cada destinatario aparece aquí después del próximo envío.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln destinatari.</source>
        <translation>
            <numerusform>%Ln destinatario.</numerusform>
            <numerusform>%Ln destinatarios.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 di %2 destinatari.</source>
        <translation>%1 de %2 destinatarios.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln righe del registro sono rovinate e non vengono mostrate.</source>
        <translation>
            <numerusform>Una línea del registro está dañada y no se muestra.</numerusform>
            <numerusform>%Ln líneas del registro están dañadas y no se muestran.</numerusform>
        </translation>
    </message>
    <message>
        <source>Il registro si interrompe a metà di una riga: il programma è terminato durante l&apos;invio.</source>
        <translation>El registro se interrumpe a mitad de una línea: el programa terminó durante el envío.</translation>
    </message>
    <message>
        <source>L&apos;invio è di un altro database: la selezione non si può cambiare da qui.</source>
        <translation>El envío es de otra base de datos: la selección no se puede cambiar desde aquí.</translation>
    </message>
    <message>
        <source>Salva l&apos;esito dell&apos;invio</source>
        <translation>Guardar el resultado del envío</translation>
    </message>
    <message>
        <source>File CSV (*.csv)|*.csv|</source>
        <translation>Archivo CSV (*.csv)|*.csv|</translation>
    </message>
    <message>
        <source>Il file non si può scrivere:</source>
        <translation>No se puede escribir el archivo:</translation>
    </message>
    <message numerus="yes">
        <source>%Ln di questi destinatari hanno già ricevuto il messaggio.</source>
        <translation>
            <numerusform>Uno de estos destinatarios ya ha recibido el mensaje.</numerusform>
            <numerusform>%Ln de estos destinatarios ya han recibido el mensaje.</numerusform>
        </translation>
    </message>
    <message>
        <source>Selezionarli tutti lo stesso?</source>
        <translation>¿Seleccionarlos todos de todos modos?</translation>
    </message>
    <message>
        <source>In questo invio nessun indirizzo è risultato inesistente.</source>
        <translation>En este envío ninguna dirección resultó inexistente.</translation>
    </message>
    <message>
        <source>In questo invio %1 destinatari su %2 risultano inesistenti.<byte value="xd"/>
Quando sono più della metà la causa è spesso un&apos;altra: un server che rifiuta ogni destinatario, o il mittente bloccato.<byte value="xd"/>
Deselezionarli lo stesso?</source>
        <translation>En este envío %1 destinatarios de %2 resultan inexistentes.<byte value="xd"/>
Cuando son más de la mitad, la causa suele ser otra: un servidor que rechaza a todos, o el remitente bloqueado.<byte value="xd"/>
¿Deseleccionarlos de todos modos?</translation>
    </message>
    <message>
        <source>La selezione non si può cambiare:</source>
        <translation>La selección no se puede cambiar:</translation>
    </message>
    <message numerus="yes">
        <source>%Ln destinatari sono stati selezionati.</source>
        <translation>
            <numerusform>Se ha seleccionado un destinatario.</numerusform>
            <numerusform>Se han seleccionado %Ln destinatarios.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln destinatari sono stati deselezionati.</source>
        <translation>
            <numerusform>Se ha deseleccionado un destinatario.</numerusform>
            <numerusform>Se han deseleccionado %Ln destinatarios.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln lo erano già.</source>
        <translation>
            <numerusform>Uno ya lo estaba.</numerusform>
            <numerusform>%Ln ya lo estaban.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln non sono stati toccati: non ci sono più, o il loro indirizzo è cambiato.</source>
        <translation>
            <numerusform>Uno no se ha tocado: ya no existe o su dirección ha cambiado.</numerusform>
            <numerusform>%Ln no se han tocado: ya no existen o su dirección ha cambiado.</numerusform>
        </translation>
    </message>
    <message>
        <source>Eliminare il registro di questo invio?<byte value="xd"/>
I destinatari restano come sono.</source>
        <translation>¿Eliminar el registro de este envío?<byte value="xd"/>
Los destinatarios quedan como están.</translation>
    </message>
    <message>
        <source>Eliminare il registro di tutti gli invii?<byte value="xd"/>
I destinatari restano come sono.</source>
        <translation>¿Eliminar el registro de todos los envíos?<byte value="xd"/>
Los destinatarios quedan como están.</translation>
    </message>
    <message>
        <source> Prova messaggio</source>
        <translation> Prueba del mensaje</translation>
    </message>
    <message>
        <source>File messaggio:</source>
        <translation>Archivo del mensaje:</translation>
    </message>
    <message>
        <source>Destinatario:</source>
        <translation>Destinatario:</translation>
    </message>
    <message>
        <source>&amp;Precedente</source>
        <translation>&amp;Anterior</translation>
    </message>
    <message>
        <source>&amp;Successivo</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>Cerca:</source>
        <translation>Buscar:</translation>
    </message>
    <message>
        <source>Ce&amp;rca</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>Oggetto:</source>
        <translation>Asunto:</translation>
    </message>
    <message>
        <source>Rilievi:</source>
        <translation>Observaciones:</translation>
    </message>
    <message>
        <source>&amp;Vai al primo</source>
        <translation>&amp;Ir al primero</translation>
    </message>
    <message>
        <source>Account mittente:</source>
        <translation>Cuenta remitente:</translation>
    </message>
    <message>
        <source>Indirizzo della prova:</source>
        <translation>Dirección de la prueba:</translation>
    </message>
    <message>
        <source>&amp;Invia una copia di prova</source>
        <translation>En&amp;viar una copia de prueba</translation>
    </message>
    <message>
        <source>Solo testo</source>
        <translation>Solo texto</translation>
    </message>
    <message>
        <source>Il messaggio come lo vede il destinatario</source>
        <translation>El mensaje como lo ve el destinatario</translation>
    </message>
    <message>
        <source>Il messaggio come lo legge chi non vede l&apos;HTML</source>
        <translation>El mensaje como lo lee quien no ve HTML</translation>
    </message>
    <message>
        <source>Cerca il destinatario</source>
        <translation>Buscar el destinatario</translation>
    </message>
    <message>
        <source>Messaggio in HTML</source>
        <translation>Mensaje en HTML</translation>
    </message>
    <message>
        <source>Messaggio di solo testo</source>
        <translation>Mensaje de solo texto</translation>
    </message>
    <message>
        <source>Forme del messaggio</source>
        <translation>Formas del mensaje</translation>
    </message>
    <message>
        <source>Mostra il messaggio del destinatario selezionato precedente</source>
        <translation>Muestra el mensaje del destinatario seleccionado anterior</translation>
    </message>
    <message>
        <source>Mostra il messaggio del destinatario selezionato successivo</source>
        <translation>Muestra el mensaje del destinatario seleccionado siguiente</translation>
    </message>
    <message>
        <source>Interrompe l&apos;invio della copia di prova</source>
        <translation>Interrumpe el envío de la copia de prueba</translation>
    </message>
    <message>
        <source>Mostra il primo destinatario di questo rilievo</source>
        <translation>Muestra el primer destinatario de esta observación</translation>
    </message>
    <message>
        <source>Apri messaggio</source>
        <translation>Abrir mensaje</translation>
    </message>
    <message>
        <source>Nessun messaggio: salvarne uno nell&apos;editor o sceglierlo con il pulsante &quot;...&quot;.</source>
        <translation>Ningún mensaje: guarde uno en el editor o elíjalo con el botón &quot;...&quot;.</translation>
    </message>
    <message>
        <source>I destinatari non si possono leggere: %1</source>
        <translation>No se pueden leer los destinatarios: %1</translation>
    </message>
    <message>
        <source>Nessun destinatario è selezionato: il messaggio si vede con i suoi segnaposto.</source>
        <translation>Ningún destinatario seleccionado: el mensaje se ve con sus variables.</translation>
    </message>
    <message>
        <source>Questa copia non si può mostrare: %1</source>
        <translation>No se puede mostrar esta copia: %1</translation>
    </message>
    <message>
        <source>non c&apos;è</source>
        <translation>falta</translation>
    </message>
    <message>
        <source>Nessun allegato.</source>
        <translation>Ningún adjunto.</translation>
    </message>
    <message>
        <source>Allegati: %1.</source>
        <translation>Adjuntos: %1.</translation>
    </message>
    <message>
        <source>Dimensione non nota: manca l&apos;account mittente.</source>
        <translation>Tamaño desconocido: falta la cuenta remitente.</translation>
    </message>
    <message>
        <source>Il messaggio non può partire: %1</source>
        <translation>El mensaje no puede salir: %1</translation>
    </message>
    <message>
        <source>Messaggio intero: %1.</source>
        <translation>Mensaje completo: %1.</translation>
    </message>
    <message>
        <source>Ricerca in corso…</source>
        <translation>Buscando…</translation>
    </message>
    <message>
        <source>Nessun destinatario selezionato contiene &quot;%1&quot;.</source>
        <translation>Ningún destinatario seleccionado contiene &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Scegliere un messaggio prima di inviare la prova.</source>
        <translation>Elija un mensaje antes de enviar la prueba.</translation>
    </message>
    <message>
        <source>Nessun account: crearne uno con il comando &quot;Imposta Account&quot;.</source>
        <translation>Ninguna cuenta: cree una con el comando &quot;Configurar cuentas&quot;.</translation>
    </message>
    <message>
        <source>L&apos;indirizzo della prova non è valido.</source>
        <translation>La dirección de la prueba no es válida.</translation>
    </message>
    <message>
        <source>La prova non è stata inviata.</source>
        <translation>La prueba no se ha enviado.</translation>
    </message>
    <message>
        <source>Invio della prova a %1… Esc per interrompere.</source>
        <translation>Enviando la prueba a %1… Esc para interrumpir.</translation>
    </message>
    <message>
        <source>La copia di prova porta con sé questi file di questo computer.<byte value="xd"/>
Vuoi inviarli?</source>
        <translation>La copia de prueba lleva consigo estos archivos de este ordenador.<byte value="xd"/>
¿Quiere enviarlos?</translation>
    </message>
    <message>
        <source>La prova non è stata consegnata. Invio interrotto.</source>
        <translation>La prueba no se ha entregado. Envío interrumpido.</translation>
    </message>
    <message>
        <source>La prova è stata accettata dal server per %1.</source>
        <translation>El servidor ha aceptado la prueba para %1.</translation>
    </message>
    <message>
        <source>La prova non è stata consegnata.</source>
        <translation>La prueba no se ha entregado.</translation>
    </message>
    <message>
        <source>Il server ha risposto: %1</source>
        <translation>El servidor respondió: %1</translation>
    </message>
    <message>
        <source>I campi dei destinatari non si possono controllare: %1</source>
        <translation>No se pueden comprobar los campos de los destinatarios: %1</translation>
    </message>
    <message>
        <source>Rilievi (controllo dei destinatari in corso):</source>
        <translation>Observaciones (comprobando los destinatarios):</translation>
    </message>
    <message>
        <source>Rilievi: nessuno</source>
        <translation>Observaciones: ninguna</translation>
    </message>
    <message>
        <source>Rilievi: %1</source>
        <translation>Observaciones: %1</translation>
    </message>
    <message>
        <source>Dall&apos;avvio del programma non è stata fatta nessuna importazione.</source>
        <translation>Desde el inicio del programa no se ha hecho ninguna importación.</translation>
    </message>
    <message>
        <source>Da %1, %2.
Importate %3, rifiutate %4.</source>
        <translation>De %1, %2.
Importadas %3, rechazadas %4.</translation>
    </message>
    <message>
        <source>Nel database ne sono rimaste %1: le ultime non sono state scritte.</source>
        <translation>En la base de datos han quedado %1: las últimas no se escribieron.</translation>
    </message>
    <message>
        <source>L&apos;elenco ha le prime %1 righe importate e le prime %1 rifiutate.</source>
        <translation>La lista tiene las primeras %1 filas importadas y las primeras %1 rechazadas.</translation>
    </message>
    <message>
        <source>Righe rifiutate</source>
        <translation>Filas rechazadas</translation>
    </message>
    <message>
        <source>Righe importate</source>
        <translation>Filas importadas</translation>
    </message>
    <message>
        <source>Tutte le righe</source>
        <translation>Todas las filas</translation>
    </message>
    <message>
        <source>Co&amp;pia</source>
        <translation>Co&amp;piar</translation>
    </message>
    <message>
        <source>Ultima importazione</source>
        <translation>Última importación</translation>
    </message>
    <message>
        <source>Righe dell&apos;ultima importazione</source>
        <translation>Filas de la última importación</translation>
    </message>
    <message>
        <source>Riga</source>
        <translation>Fila</translation>
    </message>
    <message>
        <source>Testo</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>&amp;Mostra:</source>
        <translation>&amp;Mostrar:</translation>
    </message>
    <message>
        <source>Importata</source>
        <translation>Importada</translation>
    </message>
    <message>
        <source>Rifiutata</source>
        <translation>Rechazada</translation>
    </message>
    <message>
        <source>(cartella perduta)</source>
        <translation>(carpeta perdida)</translation>
    </message>
    <message>
        <source>%1 (cartella perduta)</source>
        <translation>%1 (carpeta perdida)</translation>
    </message>
    <message>
        <source>Indirizzi doppi</source>
        <translation>Direcciones duplicadas</translation>
    </message>
    <message>
        <source>Numero</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Con &quot;Sì&quot;</source>
        <translation>Con &quot;Sí&quot;</translation>
    </message>
    <message>
        <source>Resta selezionato</source>
        <translation>Sigue seleccionado</translation>
    </message>
    <message>
        <source>Viene deselezionato</source>
        <translation>Se deselecciona</translation>
    </message>
    <message numerus="yes">
        <source>%Ln indirizzi sono selezionati più di una volta.</source>
        <translation>
            <numerusform>%Ln dirección está seleccionada más de una vez.</numerusform>
            <numerusform>%Ln direcciones están seleccionadas más de una vez.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deselezionare i %Ln doppioni, uno escluso per indirizzo?</source>
        <translation>
            <numerusform>¿Deseleccionar el duplicado?</numerusform>
            <numerusform>¿Deseleccionar los %Ln duplicados, todos menos uno por dirección?</numerusform>
        </translation>
    </message>
    <message>
        <source>L&apos;elenco mostra i primi %1 destinatari.</source>
        <translation>La lista muestra los primeros %1 destinatarios.</translation>
    </message>
    <message>
        <source>Nessun indirizzo è selezionato più di una volta.</source>
        <translation>Ninguna dirección está seleccionada más de una vez.</translation>
    </message>
    <message>
        <source>Impossibile controllare gli indirizzi.</source>
        <translation>No se pueden comprobar las direcciones.</translation>
    </message>
    <message>
        <source>Errore %1:<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>Error %1:<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>Ricerca del server di posta non riuscita: %1. Riprovare più tardi.</source>
        <translation>La búsqueda del servidor de correo falló: %1. Vuelva a intentarlo más tarde.</translation>
    </message>
    <message>
        <source>file di testo </source>
        <translation>archivo de texto </translation>
    </message>
    <message>
        <source>Ricerca di %1 nel DNS non riuscita: %2. Riprovare più tardi.</source>
        <translation>La búsqueda de %1 en el DNS falló: %2. Vuelva a intentarlo más tarde.</translation>
    </message>
    <message>
        <source>il DNS risponde con il codice di errore %1</source>
        <translation>el DNS responde con el código de error %1</translation>
    </message>
    <message>
        <source>la risposta del DNS è danneggiata</source>
        <translation>la respuesta del DNS está dañada</translation>
    </message>
    <message>
        <source>la risposta del DNS ha troppi record</source>
        <translation>la respuesta del DNS tiene demasiados registros</translation>
    </message>
    <message>
        <source>il DNS non risponde</source>
        <translation>el DNS no responde</translation>
    </message>
    <message>
        <source>nessun server DNS è raggiungibile</source>
        <translation>no se puede acceder a ningún servidor DNS</translation>
    </message>
    <message>
        <source>il DNS risponde con un guasto (SERVFAIL)</source>
        <translation>el DNS responde con un fallo (SERVFAIL)</translation>
    </message>
    <message>
        <source>il DNS rifiuta la domanda (REFUSED)</source>
        <translation>el DNS rechaza la pregunta (REFUSED)</translation>
    </message>
    <message>
        <source>il DNS non conosce domande di questo tipo (NOTIMP)</source>
        <translation>el DNS no conoce preguntas de este tipo (NOTIMP)</translation>
    </message>
    <message>
        <source>il DNS non capisce la domanda (FORMERR)</source>
        <translation>el DNS no entiende la pregunta (FORMERR)</translation>
    </message>
    <message>
        <source>il DNS ha dato una risposta che non si può usare</source>
        <translation>el DNS ha dado una respuesta que no se puede usar</translation>
    </message>
    <message>
        <source>il DNS di questo computer non è impostato</source>
        <translation>el DNS de este ordenador no está configurado</translation>
    </message>
    <message>
        <source>Ricerca non riuscita: questa cartella non si può leggere</source>
        <translation>La búsqueda falló: esta carpeta no se puede leer</translation>
    </message>
    <message>
        <source>Trovati: %1. Il database è usato da un altro programma: la ricerca riprende quando è libero.</source>
        <translation>Encontrados: %1. Otro programa está usando la base de datos: la búsqueda continúa cuando quede libre.</translation>
    </message>
    <message>
        <source>; questa cartella non si può leggere</source>
        <translation>; esta carpeta no se puede leer</translation>
    </message>
    <message>
        <source>La prova può essere stata consegnata: il server ha ricevuto tutto il messaggio e non ha risposto.</source>
        <translation>Es posible que la prueba se haya entregado: el servidor ha recibido todo el mensaje y no ha respondido.</translation>
    </message>
    <message>
        <source>Non c&apos;è nessuna rubrica.</source>
        <translation>No hay ninguna libreta de direcciones.</translation>
    </message>
    <message>
        <source>Lettura interrotta.</source>
        <translation>Lectura interrumpida.</translation>
    </message>
    <message>
        <source>Il lettore di Outlook non c&apos;è.</source>
        <translation>Falta el lector de Outlook.</translation>
    </message>
    <message>
        <source>Outlook non ha risposto in tempo.</source>
        <translation>Outlook no respondió a tiempo.</translation>
    </message>
    <message>
        <source>I contatti di Outlook non sono leggibili.</source>
        <translation>Los contactos de Outlook no se pueden leer.</translation>
    </message>
    <message>
        <source>La rubrica non è leggibile.</source>
        <translation>La libreta de direcciones no es legible.</translation>
    </message>
    <message>
        <source>Impossibile leggere la rubrica.</source>
        <translation>No se puede leer la libreta de direcciones.</translation>
    </message>
    <message>
        <source>La rubrica cambia di continuo.</source>
        <translation>La libreta de direcciones cambia continuamente.</translation>
    </message>
    <message>
        <source>La rubrica non esiste.</source>
        <translation>La libreta de direcciones no existe.</translation>
    </message>
    <message>
        <source>Il corpo del messaggio non si può aprire: </source>
        <translation>No se puede abrir el cuerpo del mensaje: </translation>
    </message>
    <message>
        <source>è troppo grande (più di %1 milioni di caratteri).</source>
        <translation>es demasiado grande (más de %1 millones de caracteres).</translation>
    </message>
    <message>
        <source>ha troppi elementi (più di %1).</source>
        <translation>tiene demasiados elementos (más de %1).</translation>
    </message>
    <message>
        <source>un elemento ha troppi attributi (più di %1).</source>
        <translation>un elemento tiene demasiados atributos (más de %1).</translation>
    </message>
    <message>
        <source>ha troppi elementi uno dentro l&apos;altro (più di %1).</source>
        <translation>tiene demasiados elementos uno dentro de otro (más de %1).</translation>
    </message>
    <message>
        <source>il suo codice HTML è troppo intricato.</source>
        <translation>su código HTML es demasiado enrevesado.</translation>
    </message>
    <message>
        <source>Impossibile mostrare il messaggio. Il testo è conservato.</source>
        <translation>No se puede mostrar el mensaje. El texto se conserva.</translation>
    </message>
    <message>
        <source>Impossibile caricare la vista dei messaggi: %1</source>
        <translation>No se puede cargar la vista de mensajes: %1</translation>
    </message>
    <message>
        <source>Impossibile stampare il messaggio.</source>
        <translation>No se puede imprimir el mensaje.</translation>
    </message>
    <message>
        <source>Impossibile scrivere %1: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>La stampante non ha preso il messaggio. %1</source>
        <translation>La impresora no ha aceptado el mensaje. %1</translation>
    </message>
    <message>
        <source>La vista del messaggio non risponde.</source>
        <translation>La vista del mensaje no responde.</translation>
    </message>
    <message>
        <source>Il browser non ha dato alcuna risposta in tempo.</source>
        <translation>El navegador no dio ninguna respuesta a tiempo.</translation>
    </message>
    <message>
        <source>Per %1 manca il client_id: va scritto nel file %2, dopo aver registrato il programma presso il fornitore.</source>
        <translation>Falta el client_id de %1: escríbalo en el archivo %2 después de registrar el programa ante el proveedor.</translation>
    </message>
    <message>
        <source>Il consenso non è stato dato.</source>
        <translation>No se dio el consentimiento.</translation>
    </message>
    <message>
        <source>Il fornitore ha rifiutato la richiesta: %1</source>
        <translation>El proveedor rechazó la solicitud: %1</translation>
    </message>
    <message>
        <source>Il fornitore non accetta la risposta del browser: riprovare.</source>
        <translation>El proveedor no acepta la respuesta del navegador: inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Manca il file %1.</source>
        <translation>Falta el archivo %1.</translation>
    </message>
    <message>
        <source>Impossibile leggere il file %1: %2.</source>
        <translation>No se puede leer el archivo %1: %2.</translation>
    </message>
    <message>
        <source>non è un elenco</source>
        <translation>no es una lista</translation>
    </message>
    <message>
        <source>l&apos;elenco è vuoto</source>
        <translation>la lista está vacía</translation>
    </message>
    <message>
        <source>una voce è vuota</source>
        <translation>una entrada está vacía</translation>
    </message>
    <message>
        <source>non è un indirizzo</source>
        <translation>no es una dirección</translation>
    </message>
    <message>
        <source>deve cominciare con https://</source>
        <translation>debe empezar por https://</translation>
    </message>
    <message>
        <source>non può contenere né un utente né un frammento</source>
        <translation>no puede contener ni un usuario ni un fragmento</translation>
    </message>
    <message>
        <source>non è un oggetto</source>
        <translation>no es un objeto</translation>
    </message>
    <message>
        <source> è del programma</source>
        <translation> es del programa</translation>
    </message>
    <message>
        <source>non è un testo</source>
        <translation>no es un texto</translation>
    </message>
    <message>
        <source>il testo è troppo lungo o contiene caratteri non ammessi</source>
        <translation>el texto es demasiado largo o contiene caracteres no admitidos</translation>
    </message>
    <message>
        <source>una voce contiene caratteri non ammessi</source>
        <translation>una entrada contiene caracteres no admitidos</translation>
    </message>
    <message>
        <source>una voce non è il nome di un server</source>
        <translation>una entrada no es el nombre de un servidor</translation>
    </message>
    <message>
        <source>sono ammessi solo 127.0.0.1, localhost e [::1]</source>
        <translation>solo se admiten 127.0.0.1, localhost y [::1]</translation>
    </message>
    <message>
        <source>Il file %1 non è valido: %2.</source>
        <translation>El archivo %1 no es válido: %2.</translation>
    </message>
    <message>
        <source>non contiene un oggetto</source>
        <translation>no contiene un objeto</translation>
    </message>
    <message>
        <source>non è JSON dal byte %1</source>
        <translation>no es JSON desde el byte %1</translation>
    </message>
    <message>
        <source>il nome di un fornitore può contenere solo a-z, 0-9 e &quot;-&quot;</source>
        <translation>el nombre de un proveedor solo puede contener a-z, 0-9 y &quot;-&quot;</translation>
    </message>
    <message>
        <source> non è un oggetto</source>
        <translation> no es un objeto</translation>
    </message>
    <message>
        <source> è scritto due volte</source>
        <translation> está escrito dos veces</translation>
    </message>
    <message>
        <source>Impossibile attendere la risposta del browser: %1</source>
        <translation>No se puede esperar la respuesta del navegador: %1</translation>
    </message>
    <message>
        <source>Richiesta non valida.</source>
        <translation>Solicitud no válida.</translation>
    </message>
    <message>
        <source>Pagina inesistente.</source>
        <translation>Página inexistente.</translation>
    </message>
    <message>
        <source>Questa risposta non appartiene all&apos;accesso in corso.</source>
        <translation>Esta respuesta no pertenece al acceso en curso.</translation>
    </message>
    <message>
        <source>Risposta ricevuta: si può chiudere questa pagina e tornare a Vestrola.</source>
        <translation>Respuesta recibida: puede cerrar esta página y volver a Vestrola.</translation>
    </message>
    <message>
        <source>L&apos;accesso non è stato concesso: si può chiudere questa pagina.</source>
        <translation>No se concedió el acceso: puede cerrar esta página.</translation>
    </message>
    <message>
        <source>La risposta del fornitore non è valida.</source>
        <translation>La respuesta del proveedor no es válida.</translation>
    </message>
    <message>
        <source>Il consenso è scaduto o è stato ritirato: nella finestra degli account accedere di nuovo con il browser.</source>
        <translation>El consentimiento ha caducado o se ha retirado: acceda de nuevo con el navegador en la ventana de cuentas.</translation>
    </message>
    <message>
        <source>Il fornitore non riconosce client_id o client_secret: %1</source>
        <translation>El proveedor no reconoce client_id o client_secret: %1</translation>
    </message>
    <message>
        <source>Il consenso dato non comprende l&apos;invio della posta.</source>
        <translation>El consentimiento dado no incluye el envío de correo.</translation>
    </message>
    <message>
        <source>Impossibile leggere il file %1</source>
        <translation>No se puede leer el archivo %1</translation>
    </message>
    <message>
        <source>Manca il consenso del fornitore: nella finestra degli account accedere con il browser.</source>
        <translation>Falta el consentimiento del proveedor: acceda con el navegador en la ventana de cuentas.</translation>
    </message>
    <message>
        <source>Il file %1 è un collegamento.</source>
        <translation>El archivo %1 es un enlace.</translation>
    </message>
    <message>
        <source>Il file %1 è danneggiato: nella finestra degli account accedere di nuovo con il browser.</source>
        <translation>El archivo %1 está dañado: acceda de nuevo con el navegador en la ventana de cuentas.</translation>
    </message>
    <message>
        <source>Impossibile scrivere il file %1.</source>
        <translation>No se puede escribir el archivo %1.</translation>
    </message>
    <message>
        <source>Il fornitore non è raggiungibile: %1</source>
        <translation>No se puede alcanzar al proveedor: %1</translation>
    </message>
    <message>
        <source>tempo scaduto.</source>
        <translation>tiempo agotado.</translation>
    </message>
    <message>
        <source>La risposta del fornitore è troppo grande.</source>
        <translation>La respuesta del proveedor es demasiado grande.</translation>
    </message>
    <message>
        <source>Il fornitore rimanda a un altro indirizzo, che non viene seguito.</source>
        <translation>El proveedor remite a otra dirección, que no se sigue.</translation>
    </message>
    <message>
        <source>errore %1 del suo server.</source>
        <translation>error %1 de su servidor.</translation>
    </message>
    <message>
        <source>Il fornitore ha rifiutato la richiesta.</source>
        <translation>El proveedor rechazó la solicitud.</translation>
    </message>
    <message>
        <source>Il consenso è scaduto e il fornitore non permette di rinnovarlo: nella finestra degli account accedere di nuovo con il browser.</source>
        <translation>El consentimiento ha caducado y el proveedor no permite renovarlo: acceda de nuevo con el navegador en la ventana de cuentas.</translation>
    </message>
    <message>
        <source>Il server %1 non appartiene a un fornitore del file %2: nessun token gli viene inviato.</source>
        <translation>El servidor %1 no pertenece a un proveedor del archivo %2: no se le envía ningún token.</translation>
    </message>
    <message>
        <source>Il portachiavi del desktop non c&apos;è.</source>
        <translation>No hay llavero del escritorio.</translation>
    </message>
    <message>
        <source>Attesa del portachiavi interrotta.</source>
        <translation>Espera del llavero interrumpida.</translation>
    </message>
    <message>
        <source>Il portachiavi non ha questa password.</source>
        <translation>El llavero no tiene esta contraseña.</translation>
    </message>
    <message>
        <source>Il portachiavi non risponde: </source>
        <translation>El llavero no responde: </translation>
    </message>
    <message>
        <source>Il portachiavi non conserva la password così com&apos;è.</source>
        <translation>El llavero no conserva la contraseña tal como es.</translation>
    </message>
    <message>
        <source>Non è un file</source>
        <translation>No es un archivo</translation>
    </message>
    <message>
        <source>Il percorso è un collegamento</source>
        <translation>La ruta es un enlace</translation>
    </message>
    <message>
        <source>Il file appartiene a un altro utente</source>
        <translation>El archivo pertenece a otro usuario</translation>
    </message>
    <message>
        <source>Il file può essere letto da altri utenti</source>
        <translation>Otros usuarios pueden leer el archivo</translation>
    </message>
    <message>
        <source>Il percorso è un collegamento di un altro utente</source>
        <translation>La ruta es un enlace de otro usuario</translation>
    </message>
    <message>
        <source>Il file è in uso</source>
        <translation>El archivo está en uso</translation>
    </message>
    <message>
        <source>%1 è un collegamento di un altro utente</source>
        <translation>%1 es un enlace de otro usuario</translation>
    </message>
    <message>
        <source>altri utenti possono %1 %2: deve essere un file dell&apos;utente con i permessi %3</source>
        <translation>otros usuarios pueden %1 %2: debe ser un archivo del usuario con los permisos %3</translation>
    </message>
    <message>
        <source>leggere o scrivere</source>
        <translation>leer o escribir</translation>
    </message>
    <message>
        <source>scrivere</source>
        <translation>escribir</translation>
    </message>
    <message>
        <source>Impossibile scrivere il file </source>
        <translation>No se puede escribir el archivo </translation>
    </message>
    <message>
        <source>Impossibile preparare la cartella </source>
        <translation>No se puede preparar la carpeta </translation>
    </message>
    <message>
        <source>Impossibile aprire </source>
        <translation>No se puede abrir </translation>
    </message>
    <message>
        <source>Un comando non può eseguire una SELECT.</source>
        <translation>Un comando no puede ejecutar una SELECT.</translation>
    </message>
    <message>
        <source>Tempo scaduto.</source>
        <translation>Tiempo agotado.</translation>
    </message>
    <message>
        <source>Formato della stringa di connessione non valido.</source>
        <translation>Formato de la cadena de conexión no válido.</translation>
    </message>
    <message>
        <source>Impossibile trovare il provider &quot;%1&quot;.</source>
        <translation>No se encuentra el proveedor &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Nessun file di database indicato.</source>
        <translation>No se ha indicado ningún archivo de base de datos.</translation>
    </message>
    <message>
        <source>Tipo di dati non corrispondente nel campo &quot;%1&quot;.</source>
        <translation>El tipo de datos no corresponde en el campo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Valore troppo grande per il campo &quot;%1&quot;.</source>
        <translation>El valor es demasiado grande para el campo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>L&apos;istruzione non è una INSERT di valori.</source>
        <translation>La instrucción no es una INSERT de valores.</translation>
    </message>
    <message>
        <source>L&apos;identità di un record non può essere scelta.</source>
        <translation>No se puede elegir la identidad de un registro.</translation>
    </message>
    <message>
        <source>Il record è stato eliminato.</source>
        <translation>El registro se ha eliminado.</translation>
    </message>
    <message>
        <source>Nessun record corrente.</source>
        <translation>No hay registro actual.</translation>
    </message>
    <message>
        <source>Operazione non consentita se l&apos;oggetto è chiuso.</source>
        <translation>Operación no permitida si el objeto está cerrado.</translation>
    </message>
    <message>
        <source>Il recordset corrente non supporta l&apos;aggiornamento.</source>
        <translation>El recordset actual no admite la actualización.</translation>
    </message>
    <message>
        <source>Impossibile trovare il campo &quot;%1&quot;.</source>
        <translation>No se encuentra el campo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>L&apos;origine di un recordset deve essere una SELECT.</source>
        <translation>El origen de un recordset debe ser una SELECT.</translation>
    </message>
    <message>
        <source>Errore interno del database: una riga ha perso il suo posto.</source>
        <translation>Error interno de la base de datos: una fila ha perdido su lugar.</translation>
    </message>
    <message>
        <source>Impossibile avviare il motore SQL.</source>
        <translation>No se puede iniciar el motor SQL.</translation>
    </message>
    <message>
        <source>La struttura del database è stata modificata.</source>
        <translation>La estructura de la base de datos ha cambiado.</translation>
    </message>
    <message>
        <source>Un&apos;altra istruzione è in attesa del database.</source>
        <translation>Otra instrucción está esperando la base de datos.</translation>
    </message>
    <message>
        <source>Errore di sintassi nell&apos;istruzione SQL vicino a &quot;%1&quot;.</source>
        <translation>Error de sintaxis en la instrucción SQL cerca de &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Il numero dei valori non corrisponde al numero dei campi di destinazione.</source>
        <translation>El número de valores no corresponde al número de campos de destino.</translation>
    </message>
    <message>
        <source>Istruzione SQL non ammessa.</source>
        <translation>Instrucción SQL no admitida.</translation>
    </message>
    <message>
        <source>Istruzione SQL non valida.</source>
        <translation>Instrucción SQL no válida.</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; è riservata al sistema.</source>
        <translation>La tabla &quot;%1&quot; está reservada al sistema.</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; non può essere usata nelle istruzioni SQL.</source>
        <translation>La tabla &quot;%1&quot; no se puede usar en las instrucciones SQL.</translation>
    </message>
    <message>
        <source>L&apos;istruzione non è una SELECT.</source>
        <translation>La instrucción no es una SELECT.</translation>
    </message>
    <message>
        <source>L&apos;istruzione deve leggere tutte le colonne di una tabella.</source>
        <translation>La instrucción debe leer todas las columnas de una tabla.</translation>
    </message>
    <message>
        <source>Il record è troppo lungo.</source>
        <translation>El registro es demasiado largo.</translation>
    </message>
    <message>
        <source>Troppi record per essere mostrati.</source>
        <translation>Demasiados registros para mostrarlos.</translation>
    </message>
    <message>
        <source>carattere nullo</source>
        <translation>carácter nulo</translation>
    </message>
    <message>
        <source>commento</source>
        <translation>comentario</translation>
    </message>
    <message>
        <source>parametro</source>
        <translation>parámetro</translation>
    </message>
    <message>
        <source>virgolette fuori da un testo</source>
        <translation>comillas fuera de un texto</translation>
    </message>
    <message>
        <source>manca un apice di chiusura</source>
        <translation>falta un apóstrofo de cierre</translation>
    </message>
    <message>
        <source>manca una parentesi quadra di chiusura</source>
        <translation>falta un corchete de cierre</translation>
    </message>
    <message>
        <source>manca un cancelletto di chiusura</source>
        <translation>falta una almohadilla de cierre</translation>
    </message>
    <message>
        <source>Istruzione SQL non ammessa: %1.</source>
        <translation>Instrucción SQL no admitida: %1.</translation>
    </message>
    <message>
        <source>Errore di sintassi nell&apos;istruzione SQL: %1.</source>
        <translation>Error de sintaxis en la instrucción SQL: %1.</translation>
    </message>
    <message>
        <source>forma non prevista</source>
        <translation>forma no prevista</translation>
    </message>
    <message>
        <source>i valori da inserire non sono leggibili</source>
        <translation>los valores que hay que insertar no se pueden leer</translation>
    </message>
    <message>
        <source>la data #%1# non è valida</source>
        <translation>la fecha #%1# no es válida</translation>
    </message>
    <message>
        <source>testo troppo lungo</source>
        <translation>texto demasiado largo</translation>
    </message>
    <message>
        <source>più di una istruzione</source>
        <translation>más de una instrucción</translation>
    </message>
    <message>
        <source>istruzione vuota</source>
        <translation>instrucción vacía</translation>
    </message>
    <message>
        <source>Il disco è pieno: il file &quot;%1&quot; non trova posto.</source>
        <translation>El disco está lleno: el archivo &quot;%1&quot; no cabe.</translation>
    </message>
    <message>
        <source>Impossibile aprire il file &quot;%1&quot;.</source>
        <translation>No se puede abrir el archivo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>L&apos;indirizzo di posta elettronica non è valido.</source>
        <translation>La dirección de correo electrónico no es válida.</translation>
    </message>
    <message>
        <source>L&apos;allegato %1 %2.</source>
        <translation>El adjunto %1 %2.</translation>
    </message>
    <message>
        <source>non esiste</source>
        <translation>no existe</translation>
    </message>
    <message>
        <source>è troppo grande</source>
        <translation>es demasiado grande</translation>
    </message>
    <message>
        <source>Il nome utente contiene un carattere non ammesso.</source>
        <translation>El nombre de usuario contiene un carácter no admitido.</translation>
    </message>
    <message>
        <source>non si può leggere</source>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <source>non è il file che è stato confermato</source>
        <translation>no es el archivo que se confirmó</translation>
    </message>
    <message>
        <source>Invio interrotto.</source>
        <translation>Envío interrumpido.</translation>
    </message>
    <message>
        <source>Risposta in ritardo al messaggio di prima</source>
        <translation>Respuesta tardía al mensaje anterior</translation>
    </message>
    <message>
        <source>Il destinatario non è stato letto: nessun invio.</source>
        <translation>No se ha leído el destinatario: no se envía nada.</translation>
    </message>
    <message>
        <source>L&apos;invio è stato fermato: nessun invio fino al prossimo avvio.</source>
        <translation>El envío se ha detenido: no se envía nada hasta el próximo inicio.</translation>
    </message>
    <message>
        <source>L&apos;indirizzo del destinatario non è stato letto: nessun invio.</source>
        <translation>No se ha leído la dirección del destinatario: no se envía nada.</translation>
    </message>
    <message>
        <source>Il messaggio per questo destinatario è già stato accettato in questo invio.</source>
        <translation>El mensaje para este destinatario ya se aceptó en este envío.</translation>
    </message>
    <message>
        <source>Il messaggio per questo destinatario è già stato accettato.</source>
        <translation>El mensaje para este destinatario ya se aceptó.</translation>
    </message>
    <message>
        <source>Non c&apos;è più spazio per ricordare i messaggi accettati.</source>
        <translation>Ya no hay espacio para recordar los mensajes aceptados.</translation>
    </message>
    <message>
        <source>Il destinatario è stato selezionato di nuovo.</source>
        <translation>El destinatario se ha seleccionado de nuevo.</translation>
    </message>
    <message>
        <source>Il file %1 esiste già.</source>
        <translation>El archivo %1 ya existe.</translation>
    </message>
    <message>
        <source>Non è possibile scrivere il file %1.</source>
        <translation>No se puede escribir el archivo %1.</translation>
    </message>
    <message>
        <source>La chiave non si può leggere.</source>
        <translation>No se puede leer la clave.</translation>
    </message>
    <message>
        <source>Il dominio non è valido.</source>
        <translation>El dominio no es válido.</translation>
    </message>
    <message>
        <source>Il dominio ha già una chiave o un selettore: %1.pem, %1.selector.</source>
        <translation>El dominio ya tiene una clave o un selector: %1.pem, %1.selector.</translation>
    </message>
    <message>
        <source>Non è possibile creare la cartella %1.</source>
        <translation>No se puede crear la carpeta %1.</translation>
    </message>
    <message>
        <source>La creazione della chiave non è riuscita.</source>
        <translation>No se ha podido crear la clave.</translation>
    </message>
    <message>
        <source>Messaggio non firmato (DKIM): %1.</source>
        <translation>Mensaje no firmado (DKIM): %1.</translation>
    </message>
    <message>
        <source>il selettore manca o non è valido</source>
        <translation>el selector falta o no es válido</translation>
    </message>
    <message>
        <source>la chiave manca o non è una chiave RSA</source>
        <translation>la clave falta o no es una clave RSA</translation>
    </message>
    <message>
        <source>la chiave ha meno di %1 bit</source>
        <translation>la clave tiene menos de %1 bits</translation>
    </message>
    <message>
        <source>la firma non è riuscita</source>
        <translation>no se ha podido firmar</translation>
    </message>
    <message>
        <source>Il server non ha completato l&apos;autenticazione.</source>
        <translation>El servidor no ha completado la autenticación.</translation>
    </message>
    <message>
        <source>Il server non accetta il consenso di OAuth 2.0 per l&apos;utente %1: %2</source>
        <translation>El servidor no acepta el consentimiento de OAuth 2.0 del usuario %1: %2</translation>
    </message>
    <message>
        <source>La password non viene inviata in chiaro a %1, che non offre una connessione TLS. Per inviarla ugualmente scrivere il nome del server nel file %2.</source>
        <translation>La contraseña no se envía sin cifrar a %1, que no ofrece conexión TLS. Para enviarla de todos modos, escriba el nombre del servidor en el archivo %2.</translation>
    </message>
    <message>
        <source>Il server non offre l&apos;accesso con OAuth 2.0.</source>
        <translation>El servidor no ofrece el acceso con OAuth 2.0.</translation>
    </message>
    <message>
        <source>Il server non offre un metodo di autenticazione conosciuto.</source>
        <translation>El servidor no ofrece ningún método de autenticación conocido.</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; non si può eliminare.</source>
        <translation>No se puede eliminar el archivo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>La cartella &quot;%1&quot; non si può creare.</source>
        <translation>No se puede crear la carpeta &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; non si può scrivere: %2</source>
        <translation>No se puede escribir el archivo &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Autenticazione non riuscita: %1</source>
        <translation>Error de autenticación: %1</translation>
    </message>
    <message>
        <source>Il nome utente o la password contengono un carattere non ammesso.</source>
        <translation>El nombre de usuario o la contraseña contienen un carácter no admitido.</translation>
    </message>
    <message>
        <source>Il server rifiuta il messaggio per le sue regole</source>
        <translation>El servidor rechaza el mensaje por sus reglas</translation>
    </message>
    <message>
        <source>Il server limita il numero o la frequenza degli invii</source>
        <translation>El servidor limita el número o la frecuencia de los envíos</translation>
    </message>
    <message>
        <source>Il server considera il messaggio posta indesiderata (spam)</source>
        <translation>El servidor considera el mensaje correo no deseado (spam)</translation>
    </message>
    <message>
        <source>%1, per ora, codice %2: %3</source>
        <translation>%1, por ahora, código %2: %3</translation>
    </message>
    <message>
        <source>%1, codice %2: %3</source>
        <translation>%1, código %2: %3</translation>
    </message>
    <message>
        <source>Server %1 non trovato.</source>
        <translation>No se encuentra el servidor %1.</translation>
    </message>
    <message>
        <source>Connessione rifiutata da %1, porta %2.</source>
        <translation>Conexión rechazada por %1, puerto %2.</translation>
    </message>
    <message>
        <source>Il server ha chiuso la connessione.</source>
        <translation>El servidor ha cerrado la conexión.</translation>
    </message>
    <message>
        <source>Errore di rete: %1</source>
        <translation>Error de red: %1</translation>
    </message>
    <message>
        <source>Il dominio del destinatario non ha un server di posta.</source>
        <translation>El dominio del destinatario no tiene servidor de correo.</translation>
    </message>
    <message>
        <source>Risposta del server non valida: %1</source>
        <translation>Respuesta del servidor no válida: %1</translation>
    </message>
    <message>
        <source>Risposta del server inattesa: %1 %2</source>
        <translation>Respuesta inesperada del servidor: %1 %2</translation>
    </message>
    <message>
        <source>Il server non offre più la connessione TLS, che ha offerto in passato. Per dimenticarlo cancellare la sua riga dal file %1.</source>
        <translation>El servidor ya no ofrece la conexión TLS que ofreció en el pasado. Para olvidarlo, borre su línea del archivo %1.</translation>
    </message>
    <message>
        <source>Il server non accetta indirizzi con caratteri internazionali.</source>
        <translation>El servidor no acepta direcciones con caracteres internacionales.</translation>
    </message>
    <message>
        <source>il certificato è autofirmato</source>
        <translation>el certificado está autofirmado</translation>
    </message>
    <message>
        <source>il certificato è scaduto</source>
        <translation>el certificado ha caducado</translation>
    </message>
    <message>
        <source>il certificato non è ancora valido</source>
        <translation>el certificado aún no es válido</translation>
    </message>
    <message>
        <source>il certificato è di un altro server</source>
        <translation>el certificado es de otro servidor</translation>
    </message>
    <message>
        <source>l&apos;autorità che ha emesso il certificato non è attendibile</source>
        <translation>la autoridad que emitió el certificado no es de confianza</translation>
    </message>
    <message>
        <source>Il server ha aggiunto testo in chiaro alla risposta a STARTTLS.</source>
        <translation>El servidor ha añadido texto sin cifrar a la respuesta a STARTTLS.</translation>
    </message>
    <message>
        <source>in chiaro</source>
        <translation>sin cifrar</translation>
    </message>
    <message>
        <source>%1, %2, certificato %3</source>
        <translation>%1, %2, certificado %3</translation>
    </message>
    <message>
        <source>non verificato</source>
        <translation>no verificado</translation>
    </message>
    <message>
        <source>valido</source>
        <translation>válido</translation>
    </message>
    <message>
        <source>Connessione TLS non riuscita: %1.</source>
        <translation>La conexión TLS ha fallado: %1.</translation>
    </message>
    <message>
        <source>Il token di OAuth 2.0 non viene inviato a %1: la connessione non è protetta da TLS con un certificato valido.</source>
        <translation>El token de OAuth 2.0 no se envía a %1: la conexión no está protegida por TLS con un certificado válido.</translation>
    </message>
    <message>
        <source>Uso non valido di Null.</source>
        <translation>Uso no válido de Null.</translation>
    </message>
    <message>
        <source>Tipo non corrispondente.</source>
        <translation>Los tipos no coinciden.</translation>
    </message>
    <message>
        <source>Overflow.</source>
        <translation>Desbordamiento.</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; non ha un contatore.</source>
        <translation>La tabla &quot;%1&quot; no tiene contador.</translation>
    </message>
    <message>
        <source>Il contatore della tabella &quot;%1&quot; è esaurito.</source>
        <translation>El contador de la tabla &quot;%1&quot; está agotado.</translation>
    </message>
    <message>
        <source>il catalogo non è leggibile</source>
        <translation>el catálogo no se puede leer</translation>
    </message>
    <message>
        <source>la pagina %1 non contiene righe</source>
        <translation>la página %1 no contiene filas</translation>
    </message>
    <message>
        <source>la pagina %1 ha troppe righe</source>
        <translation>la página %1 tiene demasiadas filas</translation>
    </message>
    <message>
        <source>le righe della pagina %1 si sovrappongono</source>
        <translation>las filas de la página %1 se solapan</translation>
    </message>
    <message>
        <source>la riga %1 della pagina %2 è fuori posto</source>
        <translation>la fila %1 de la página %2 está fuera de lugar</translation>
    </message>
    <message>
        <source>la pagina %1 non ha posto</source>
        <translation>la página %1 no tiene espacio</translation>
    </message>
    <message>
        <source>Password non valida.</source>
        <translation>Contraseña no válida.</translation>
    </message>
    <message>
        <source>il file &quot;%1&quot; è troncato</source>
        <translation>el archivo &quot;%1&quot; está truncado</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; è collegata a un altro file.</source>
        <translation>La tabla &quot;%1&quot; está vinculada a otro archivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; è una query, non una tabella.</source>
        <translation>&quot;%1&quot; es una consulta, no una tabla.</translation>
    </message>
    <message>
        <source>Impossibile trovare la tabella &quot;%1&quot;.</source>
        <translation>No se encuentra la tabla &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Nessuna transazione è in corso.</source>
        <translation>No hay ninguna transacción en curso.</translation>
    </message>
    <message>
        <source>Impossibile scrivere nella cartella di &quot;%1&quot;.</source>
        <translation>No se puede escribir en la carpeta de &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; è in uso da un altro programma.</source>
        <translation>El archivo &quot;%1&quot; está en uso por otro programa.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; è il database aperto.</source>
        <translation>&quot;%1&quot; es la base de datos abierta.</translation>
    </message>
    <message>
        <source>la definizione della tabella a pagina %1 è incompleta</source>
        <translation>la definición de la tabla en la página %1 está incompleta</translation>
    </message>
    <message>
        <source>un nome nella definizione della tabella a pagina %1 non è valido</source>
        <translation>un nombre en la definición de la tabla en la página %1 no es válido</translation>
    </message>
    <message>
        <source>la definizione della tabella a pagina %1 ha due campi con il nome &quot;%2&quot;</source>
        <translation>la definición de la tabla en la página %1 tiene dos campos con el nombre &quot;%2&quot;</translation>
    </message>
    <message>
        <source>la pagina %1 non è la definizione di una tabella</source>
        <translation>la página %1 no es la definición de una tabla</translation>
    </message>
    <message>
        <source>la definizione della tabella a pagina %1 non finisce</source>
        <translation>la definición de la tabla en la página %1 no termina</translation>
    </message>
    <message>
        <source>la definizione della tabella a pagina %1 non è leggibile</source>
        <translation>la definición de la tabla en la página %1 no se puede leer</translation>
    </message>
    <message>
        <source>un campo della tabella a pagina %1 non ha posto nelle righe</source>
        <translation>un campo de la tabla en la página %1 no tiene lugar en las filas</translation>
    </message>
    <message>
        <source>un indice della tabella a pagina %1 non esiste</source>
        <translation>un índice de la tabla en la página %1 no existe</translation>
    </message>
    <message>
        <source>disco pieno</source>
        <translation>disco lleno</translation>
    </message>
    <message>
        <source>lo spazio concesso all&apos;utente sul disco è esaurito</source>
        <translation>el espacio de disco concedido al usuario está agotado</translation>
    </message>
    <message>
        <source>il disco è di sola lettura</source>
        <translation>el disco es de solo lectura</translation>
    </message>
    <message>
        <source>permesso negato</source>
        <translation>permiso denegado</translation>
    </message>
    <message>
        <source>il disco non riesce a leggere o scrivere</source>
        <translation>el disco no consigue leer o escribir</translation>
    </message>
    <message>
        <source>il file supera la dimensione concessa</source>
        <translation>el archivo supera el tamaño permitido</translation>
    </message>
    <message>
        <source>il nome è un collegamento</source>
        <translation>el nombre es un enlace</translation>
    </message>
    <message>
        <source>il file esiste già</source>
        <translation>el archivo ya existe</translation>
    </message>
    <message>
        <source>è una cartella</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>il file o la cartella non esiste</source>
        <translation>el archivo o la carpeta no existe</translation>
    </message>
    <message>
        <source>il nome è troppo lungo</source>
        <translation>el nombre es demasiado largo</translation>
    </message>
    <message>
        <source>troppi file aperti</source>
        <translation>demasiados archivos abiertos</translation>
    </message>
    <message>
        <source>memoria esaurita</source>
        <translation>memoria agotada</translation>
    </message>
    <message>
        <source>il disco non conosce questa operazione</source>
        <translation>el disco no admite esta operación</translation>
    </message>
    <message>
        <source>il disco non è più raggiungibile</source>
        <translation>ya no se puede acceder al disco</translation>
    </message>
    <message>
        <source>il file è in uso</source>
        <translation>el archivo está en uso</translation>
    </message>
    <message>
        <source>errore di sistema %1</source>
        <translation>error del sistema %1</translation>
    </message>
    <message>
        <source>Errore del disco (%1) sul file &quot;%2&quot;: %3.</source>
        <translation>Error del disco (%1) en el archivo &quot;%2&quot;: %3.</translation>
    </message>
    <message>
        <source>Impossibile trovare il file &quot;%1&quot;.</source>
        <translation>No se encuentra el archivo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Impossibile aprire il file &quot;%1&quot;: %2.</source>
        <translation>No se puede abrir el archivo &quot;%1&quot;: %2.</translation>
    </message>
    <message>
        <source>le tabelle nuove sono descritte male</source>
        <translation>las tablas nuevas están mal descritas</translation>
    </message>
    <message>
        <source>le tabelle nuove sono troppe</source>
        <translation>hay demasiadas tablas nuevas</translation>
    </message>
    <message>
        <source>una tabella nuova ha troppe colonne</source>
        <translation>una tabla nueva tiene demasiadas columnas</translation>
    </message>
    <message>
        <source>un nome non ha chiave</source>
        <translation>un nombre no tiene clave</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; esiste già.</source>
        <translation>El archivo &quot;%1&quot; ya existe.</translation>
    </message>
    <message>
        <source>Il database è danneggiato: %1.</source>
        <translation>La base de datos está dañada: %1.</translation>
    </message>
    <message>
        <source>Errore interno del database: %1.</source>
        <translation>Error interno de la base de datos: %1.</translation>
    </message>
    <message>
        <source>Il database ha raggiunto la dimensione massima di 2 GB.</source>
        <translation>La base de datos ha alcanzado el tamaño máximo de 2 GB.</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; è in uso da un altro programma.</source>
        <translation>La base de datos &quot;%1&quot; está en uso por otro programa.</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; è aperto in un altro programma (%2): non può essere modificato.</source>
        <translation>La base de datos &quot;%1&quot; está abierta en otro programa (%2): no se puede modificar.</translation>
    </message>
    <message>
        <source>Formato di database non riconosciuto: %1.</source>
        <translation>Formato de base de datos no reconocido: %1.</translation>
    </message>
    <message>
        <source>il file non è un database Jet</source>
        <translation>el archivo no es una base de datos Jet</translation>
    </message>
    <message>
        <source>è un file .accdb di Access 2007 o successivo; salvarlo in formato Access 2000-2003 (.mdb)</source>
        <translation>es un archivo .accdb de Access 2007 o posterior; guárdelo en formato Access 2000-2003 (.mdb)</translation>
    </message>
    <message>
        <source>è di una versione più recente di Access 2003</source>
        <translation>es de una versión posterior a Access 2003</translation>
    </message>
    <message>
        <source>il file è troncato</source>
        <translation>el archivo está truncado</translation>
    </message>
    <message>
        <source>è un file di Access 97 con una tabella codici diversa da quella occidentale (1252)</source>
        <translation>es un archivo de Access 97 con una página de códigos distinta de la occidental (1252)</translation>
    </message>
    <message>
        <source>la pagina di indice %1 non è leggibile</source>
        <translation>la página de índice %1 no se puede leer</translation>
    </message>
    <message>
        <source>la pagina di indice %1 è troppo piena</source>
        <translation>la página de índice %1 está demasiado llena</translation>
    </message>
    <message>
        <source>la pagina di indice %1 non ha un ultimo ramo</source>
        <translation>la página de índice %1 no tiene última rama</translation>
    </message>
    <message>
        <source>un indice di &quot;%1&quot; gira in tondo</source>
        <translation>un índice de &quot;%1&quot; da vueltas en círculo</translation>
    </message>
    <message>
        <source>un indice di &quot;%1&quot; contiene già la riga</source>
        <translation>un índice de &quot;%1&quot; ya contiene la fila</translation>
    </message>
    <message>
        <source>Le voci di un indice del database sono troppo lunghe per essere divise.</source>
        <translation>Las entradas de un índice de la base de datos son demasiado largas para dividirlas.</translation>
    </message>
    <message>
        <source>la definizione di una tabella è incompleta</source>
        <translation>la definición de una tabla está incompleta</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; non è un giornale di questo database: è un collegamento o appartiene a chi non può scrivere il database. Il database non viene aperto finché il file resta al suo posto.</source>
        <translation>El archivo &quot;%1&quot; no es un diario de esta base de datos: es un enlace o pertenece a quien no puede escribir la base de datos. La base de datos no se abre mientras el archivo siga en su lugar.</translation>
    </message>
    <message>
        <source>Troppi file &quot;%1&quot;.</source>
        <translation>Demasiados archivos &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Accanto al database c&apos;era un giornale di modifiche interrotte che non gli appartiene. Il database resta com&apos;è; il giornale è stato messo da parte come &quot;%1&quot;.</source>
        <translation>Junto a la base de datos había un diario de modificaciones interrumpidas que no le pertenece. La base de datos queda como está; el diario se ha apartado como &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>lettura</source>
        <translation>lectura</translation>
    </message>
    <message>
        <source>un indice di &quot;%1&quot; nomina un campo che non c&apos;è</source>
        <translation>un índice de &quot;%1&quot; nombra un campo que no existe</translation>
    </message>
    <message>
        <source>un valore del campo &quot;%1&quot; è troppo corto</source>
        <translation>un valor del campo &quot;%1&quot; es demasiado corto</translation>
    </message>
    <message>
        <source>il campo &quot;%1&quot; non ha l&apos;ordinamento generale</source>
        <translation>el campo &quot;%1&quot; no tiene el orden general</translation>
    </message>
    <message>
        <source>il tipo del campo &quot;%1&quot; non è adatto a un indice</source>
        <translation>el tipo del campo &quot;%1&quot; no es apto para un índice</translation>
    </message>
    <message>
        <source>non è su alcun campo</source>
        <translation>no está sobre ningún campo</translation>
    </message>
    <message>
        <source>Il testo del campo &quot;%1&quot; contiene il carattere %2, che non può stare nell&apos;indice &quot;%3&quot;.</source>
        <translation>El texto del campo &quot;%1&quot; contiene el carácter %2, que no puede estar en el índice &quot;%3&quot;.</translation>
    </message>
    <message>
        <source>I valori sono troppo lunghi per l&apos;indice &quot;%1&quot;.</source>
        <translation>Los valores son demasiado largos para el índice &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>un campo memo non è leggibile</source>
        <translation>un campo memo no se puede leer</translation>
    </message>
    <message>
        <source>Il database non ha posto per i testi lunghi di un campo memo.</source>
        <translation>La base de datos no tiene espacio para los textos largos de un campo memo.</translation>
    </message>
    <message>
        <source>scrittura</source>
        <translation>escritura</translation>
    </message>
    <message>
        <source>creazione</source>
        <translation>creación</translation>
    </message>
    <message>
        <source>&quot;%1&quot; non è un file.</source>
        <translation>&quot;%1&quot; no es un archivo.</translation>
    </message>
    <message>
        <source>accorciamento</source>
        <translation>acortamiento</translation>
    </message>
    <message>
        <source>prenotazione</source>
        <translation>reserva</translation>
    </message>
    <message>
        <source>sincronizzazione</source>
        <translation>sincronización</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; può essere letto o scritto da chi non può farlo con &quot;%2&quot;.</source>
        <translation>El archivo &quot;%1&quot; lo puede leer o escribir quien no puede hacerlo con &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>blocco</source>
        <translation>bloqueo</translation>
    </message>
    <message>
        <source>cancellazione</source>
        <translation>eliminación</translation>
    </message>
    <message>
        <source>cambio di nome</source>
        <translation>cambio de nombre</translation>
    </message>
    <message>
        <source>%1 Accanto è rimasto il giornale delle sue ultime modifiche, &quot;%2&quot;, che viene conservato: rimettere il file al suo posto.</source>
        <translation>%1 Al lado ha quedado el diario de sus últimas modificaciones, &quot;%2&quot;, que se conserva: vuelva a poner el archivo en su lugar.</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; supera la dimensione massima di un database, 2 GB.</source>
        <translation>El archivo &quot;%1&quot; supera el tamaño máximo de una base de datos, 2 GB.</translation>
    </message>
    <message>
        <source>la lunghezza del file non è quella di un database</source>
        <translation>la longitud del archivo no es la de una base de datos</translation>
    </message>
    <message>
        <source>manca la pagina %1</source>
        <translation>falta la página %1</translation>
    </message>
    <message>
        <source>la pagina %1 è troncata</source>
        <translation>la página %1 está truncada</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; è di Access 97: può essere letto ma non modificato. Per modificarlo convertirlo in formato Access 2000-2003 (.mdb).</source>
        <translation>La base de datos &quot;%1&quot; es de Access 97: se puede leer pero no modificar. Para modificarla, conviértala al formato Access 2000-2003 (.mdb).</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; è di sola lettura.</source>
        <translation>La base de datos &quot;%1&quot; es de solo lectura.</translation>
    </message>
    <message>
        <source>Una transazione è già in corso.</source>
        <translation>Ya hay una transacción en curso.</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; viene sostituito di continuo da un altro programma.</source>
        <translation>Otro programa sustituye continuamente la base de datos &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; va ripristinato dopo un&apos;interruzione, ma non può essere scritto.</source>
        <translation>La base de datos &quot;%1&quot; debe restaurarse tras una interrupción, pero no se puede escribir.</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; è stato sostituito o cancellato: la modifica non è stata fatta.</source>
        <translation>La base de datos &quot;%1&quot; se ha sustituido o eliminado: la modificación no se ha hecho.</translation>
    </message>
    <message>
        <source>la pagina %1 è fra quelle libere di una tabella a cui non appartiene</source>
        <translation>la página %1 está entre las libres de una tabla a la que no pertenece</translation>
    </message>
    <message>
        <source>una riga di &quot;%1&quot; non è leggibile</source>
        <translation>una fila de &quot;%1&quot; no se puede leer</translation>
    </message>
    <message>
        <source>Il record è troppo grande per la tabella &quot;%1&quot; (%2 byte; al massimo %3).</source>
        <translation>El registro es demasiado grande para la tabla &quot;%1&quot; (%2 bytes; como máximo %3).</translation>
    </message>
    <message>
        <source>la pagina %1 non appartiene alla tabella &quot;%2&quot;</source>
        <translation>la página %1 no pertenece a la tabla &quot;%2&quot;</translation>
    </message>
    <message>
        <source>la riga %1 della pagina %2 non dice dove è</source>
        <translation>la fila %1 de la página %2 no dice dónde está</translation>
    </message>
    <message>
        <source>la riga %1 della pagina %2 si è persa</source>
        <translation>la fila %1 de la página %2 se ha perdido</translation>
    </message>
    <message>
        <source>una riga di &quot;%1&quot; è sparita</source>
        <translation>una fila de &quot;%1&quot; ha desaparecido</translation>
    </message>
    <message>
        <source>la pagina %1 è in uso ed è segnata come libera</source>
        <translation>la página %1 está en uso y marcada como libre</translation>
    </message>
    <message>
        <source>un indice gira in tondo</source>
        <translation>un índice da vueltas en círculo</translation>
    </message>
    <message>
        <source>La struttura della tabella &quot;%1&quot; è stata cambiata da un altro programma.</source>
        <translation>Otro programa ha cambiado la estructura de la tabla &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; non ha una chiave primaria numerica.</source>
        <translation>La tabla &quot;%1&quot; no tiene clave principal numérica.</translation>
    </message>
    <message>
        <source>nell&apos;indice &quot;%1&quot; manca una riga</source>
        <translation>en el índice &quot;%1&quot; falta una fila</translation>
    </message>
    <message>
        <source>Il numero dei valori non è quello dei campi della tabella &quot;%1&quot;.</source>
        <translation>El número de valores no es el de los campos de la tabla &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>il campo &quot;%1&quot; è un contatore</source>
        <translation>el campo &quot;%1&quot; es un contador</translation>
    </message>
    <message>
        <source>la mappa delle pagine %1/%2 non è leggibile</source>
        <translation>el mapa de páginas %1/%2 no se puede leer</translation>
    </message>
    <message>
        <source>la mappa delle pagine %1/%2 comincia oltre il file</source>
        <translation>el mapa de páginas %1/%2 empieza más allá del archivo</translation>
    </message>
    <message>
        <source>la pagina %1 non è una mappa</source>
        <translation>la página %1 no es un mapa</translation>
    </message>
    <message>
        <source>Una mappa delle pagine del database non può crescere oltre.</source>
        <translation>Un mapa de páginas de la base de datos no puede crecer más.</translation>
    </message>
    <message>
        <source>Il numero è troppo grande per il campo &quot;%1&quot;.</source>
        <translation>El número es demasiado grande para el campo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Il campo &quot;%1&quot; è troppo piccolo per il testo (al massimo %2 caratteri).</source>
        <translation>El campo &quot;%1&quot; es demasiado pequeño para el texto (como máximo %2 caracteres).</translation>
    </message>
    <message>
        <source>Il testo del campo &quot;%1&quot; contiene caratteri che il database non può conservare.</source>
        <translation>El texto del campo &quot;%1&quot; contiene caracteres que la base de datos no puede conservar.</translation>
    </message>
    <message>
        <source>Il campo &quot;%1&quot; non può contenere %2 byte.</source>
        <translation>El campo &quot;%1&quot; no puede contener %2 bytes.</translation>
    </message>
    <message>
        <source>contiene un oggetto OLE</source>
        <translation>contiene un objeto OLE</translation>
    </message>
    <message>
        <source>è un testo di lunghezza fissa</source>
        <translation>es un texto de longitud fija</translation>
    </message>
    <message>
        <source>è di un tipo sconosciuto (%1)</source>
        <translation>es de un tipo desconocido (%1)</translation>
    </message>
    <message>
        <source>Il campo &quot;%1&quot; %2: non può essere modificato.</source>
        <translation>El campo &quot;%1&quot; %2: no se puede modificar.</translation>
    </message>
    <message>
        <source>l&apos;indice &quot;%1&quot; (%2) non può essere aggiornato, perché %3</source>
        <translation>el índice &quot;%1&quot; (%2) no se puede actualizar, porque %3</translation>
    </message>
    <message>
        <source>le sue voci non corrispondono alle righe della tabella</source>
        <translation>sus entradas no corresponden a las filas de la tabla</translation>
    </message>
    <message>
        <source>la forma delle sue chiavi decrescenti non è certa</source>
        <translation>la forma de sus claves descendentes no es segura</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; non può essere modificata: %2.</source>
        <translation>La tabla &quot;%1&quot; no se puede modificar: %2.</translation>
    </message>
    <message>
        <source>è una tabella di sistema</source>
        <translation>es una tabla del sistema</translation>
    </message>
    <message>
        <source>ha una relazione con un&apos;altra tabella</source>
        <translation>tiene una relación con otra tabla</translation>
    </message>
    <message>
        <source>il campo &quot;%1&quot; %2</source>
        <translation>el campo &quot;%1&quot; %2</translation>
    </message>
    <message>
        <source>il campo &quot;%1&quot; è un contatore di tipo GUID</source>
        <translation>el campo &quot;%1&quot; es un contador de tipo GUID</translation>
    </message>
    <message>
        <source>Il campo &quot;%1&quot; deve contenere un valore.</source>
        <translation>El campo &quot;%1&quot; debe contener un valor.</translation>
    </message>
    <message>
        <source>Il campo &quot;%1&quot; non può contenere un testo vuoto.</source>
        <translation>El campo &quot;%1&quot; no puede contener un texto vacío.</translation>
    </message>
    <message>
        <source>I campi dell&apos;indice &quot;%1&quot; (%2) devono contenere un valore.</source>
        <translation>Los campos del índice &quot;%1&quot; (%2) deben contener un valor.</translation>
    </message>
    <message>
        <source>Il valore di &quot;%1&quot; esiste già e l&apos;indice &quot;%2&quot; non ammette duplicati.</source>
        <translation>El valor de &quot;%1&quot; ya existe y el índice &quot;%2&quot; no admite duplicados.</translation>
    </message>
</context>
</TS>
