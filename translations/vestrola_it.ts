<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="it">
<context>
    <name>Vestrola</name>
    <message numerus="yes">
        <source>inseriti %n destinatari</source>
        <translation>
            <numerusform>inserito 1 destinatario</numerusform>
            <numerusform>inseriti %n destinatari</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>altre %n cartelle</source>
        <translation>
            <numerusform>altre %n cartelle</numerusform>
            <numerusform>altre %n cartelle</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln immagini non ci sono</source>
        <translation>
            <numerusform>Un&apos;immagine non c&apos;è</numerusform>
            <numerusform>%Ln immagini non ci sono</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file non possono partire come immagini del messaggio</source>
        <translation>
            <numerusform>Un file non può partire come immagine del messaggio</numerusform>
            <numerusform>%Ln file non possono partire come immagini del messaggio</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln collegamenti non portano da nessuna parte</source>
        <translation>
            <numerusform>Un collegamento non porta da nessuna parte</numerusform>
            <numerusform>%Ln collegamenti non portano da nessuna parte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln immagini restano sul web</source>
        <translation>
            <numerusform>Un&apos;immagine resta sul web</numerusform>
            <numerusform>%Ln immagini restano sul web</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>e altri %n</source>
        <translation>
            <numerusform>e altri %n</numerusform>
            <numerusform>e altri %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nel testo incollato %n elementi restano sul web</source>
        <translation>
            <numerusform>Nel testo incollato %n elemento resta sul web</numerusform>
            <numerusform>Nel testo incollato %n elementi restano sul web</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>circa %n minuti</source>
        <translation>
            <numerusform>circa un minuto</numerusform>
            <numerusform>circa %n minuti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>circa %n ore</source>
        <translation>
            <numerusform>circa un&apos;ora</numerusform>
            <numerusform>circa %n ore</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>circa %n ore e %1 min</source>
        <translation>
            <numerusform>circa un&apos;ora e %1 min</numerusform>
            <numerusform>circa %n ore e %1 min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln destinatari</source>
        <translation>
            <numerusform>%Ln destinatario</numerusform>
            <numerusform>%Ln destinatari</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln trovati, ricerca in corso…</source>
        <translation>
            <numerusform>%Ln trovati, ricerca in corso…</numerusform>
            <numerusform>%Ln trovati, ricerca in corso…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln trovati</source>
        <translation>
            <numerusform>%Ln trovato</numerusform>
            <numerusform>%Ln trovati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln cartelle</source>
        <translation>
            <numerusform>%1 in %Ln cartella</numerusform>
            <numerusform>%1 in %Ln cartelle</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln cartelle</source>
        <translation>
            <numerusform>%Ln cartella</numerusform>
            <numerusform>%Ln cartelle</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n righe</source>
        <translation>
            <numerusform>%n riga</numerusform>
            <numerusform>%n righe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln destinatari.</source>
        <translation>
            <numerusform>%Ln destinatari.</numerusform>
            <numerusform>%Ln destinatari.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln righe del registro sono rovinate e non vengono mostrate.</source>
        <translation>
            <numerusform>Una riga del registro è rovinata e non viene mostrata.</numerusform>
            <numerusform>%Ln righe del registro sono rovinate e non vengono mostrate.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln di questi destinatari hanno già ricevuto il messaggio.</source>
        <translation>
            <numerusform>Uno di questi destinatari ha già ricevuto il messaggio.</numerusform>
            <numerusform>%Ln di questi destinatari hanno già ricevuto il messaggio.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln destinatari sono stati selezionati.</source>
        <translation>
            <numerusform>Un destinatario è stato selezionato.</numerusform>
            <numerusform>%Ln destinatari sono stati selezionati.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln destinatari sono stati deselezionati.</source>
        <translation>
            <numerusform>Un destinatario è stato deselezionato.</numerusform>
            <numerusform>%Ln destinatari sono stati deselezionati.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln lo erano già.</source>
        <translation>
            <numerusform>Uno lo era già.</numerusform>
            <numerusform>%Ln lo erano già.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln non sono stati toccati: non ci sono più, o il loro indirizzo è cambiato.</source>
        <translation>
            <numerusform>Uno non è stato toccato: non c&apos;è più, o il suo indirizzo è cambiato.</numerusform>
            <numerusform>%Ln non sono stati toccati: non ci sono più, o il loro indirizzo è cambiato.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln indirizzi sono selezionati più di una volta.</source>
        <translation>
            <numerusform>%Ln indirizzo è selezionato più di una volta.</numerusform>
            <numerusform>%Ln indirizzi sono selezionati più di una volta.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deselezionare i %Ln doppioni, uno escluso per indirizzo?</source>
        <translation>
            <numerusform>Deselezionare il doppione?</numerusform>
            <numerusform>Deselezionare i %Ln doppioni, uno escluso per indirizzo?</numerusform>
        </translation>
    </message>
</context>
</TS>
