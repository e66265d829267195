#!/usr/bin/env python3
# Writes the office's RTF templates into resources/office/acte: the six dispositions, the
# income declaration and the calculation sheet. The files have the shape that the template
# engine needs, as Word 97-2003 saves them: the header ends with the \pnseclvl list groups,
# whose last "{\pntxta )}}" splits header from body, and the file ends with "}" and CRLF.
# Run it after changing a text here; then regenerate the expected documents of the tests
# (./scripts/rescrie-asteptate.sh) and read their diff before committing.
import os
OUT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "resources", "office", "acte")

HEADER = r"""{\rtf1\ansi\ansicpg1250\uc1\deff0\deflang1048\deflangfe1048
{\fonttbl{\f0\froman\fcharset238\fprq2 Times New Roman;}{\f1\fswiss\fcharset238\fprq2 Arial;}}
{\colortbl;\red0\green0\blue0;}
{\stylesheet{\ql \li0\ri0\widctlpar\aspalpha\aspnum\faauto\adjustright\rin0\lin0\itap0 \f0\fs24\lang1048\langfe1048\cgrid\langnp1048\langfenp1048 \snext0 Normal;}{\*\cs10 \additive \ssemihidden Default Paragraph Font;}}
{\info{\title TITLU}{\author Primaria}{\operator Primaria}}
\paperw11906\paperh16838\margl1418\margr1134\margt1134\margb1134\gutter0
\widowctrl\ftnbj\aenddoc\hyphhotz425\noxlattoyen\expshrtn\noultrlspc\dntblnsbdb\nospaceforul\formshade\horzdoc\dgmargin\dghspace180\dgvspace180\dghorigin1418\dgvorigin1134\dghshow1\dgvshow1
\jexpand\viewkind1\viewscale100\pgbrdrhead\pgbrdrfoot\splytwnine\ftnlytwnine\htmautsp\nolnhtadjtbl\useltbaln\alntblind\lytcalctblwd\lyttblrtgr\lnbrkrule\nobrkwrptbl\snaptogridincell\allowfieldendsel\wrppunct\asianbrkrule\rsidroot1
\fet0\sectd \linex0\headery709\footery709\colsx708\endnhere\sectlinegrid360\sectdefaultcl\sftnbj
{\*\pnseclvl1\pnucrm\pnstart1\pnindent720\pnhang {\pntxta .}}{\*\pnseclvl2\pnucltr\pnstart1\pnindent720\pnhang {\pntxta .}}{\*\pnseclvl3\pndec\pnstart1\pnindent720\pnhang {\pntxta .}}{\*\pnseclvl4\pnlcltr\pnstart1\pnindent720\pnhang {\pntxta )}}{\*\pnseclvl5\pndec\pnstart1\pnindent720\pnhang {\pntxtb (}{\pntxta )}}{\*\pnseclvl6\pnlcltr\pnstart1\pnindent720\pnhang {\pntxtb (}{\pntxta )}}{\*\pnseclvl7\pnlcrm\pnstart1\pnindent720\pnhang {\pntxtb (}{\pntxta )}}{\*\pnseclvl8\pnlcltr\pnstart1\pnindent720\pnhang {\pntxtb (}{\pntxta )}}{\*\pnseclvl9\pnlcrm\pnstart1\pnindent720\pnhang {\pntxtb (}{\pntxta )}}"""

P = r"\pard\plain \ql\sa0\widctlpar\f0\fs24\lang1048 "

def par(text, align="ql", bold=False, size=24, sb=0, sa=0, indent=False, extra=""):
    fmt = "\\pard\\plain \\%s\\sb%d\\sa%d\\widctlpar%s%s\\f0\\fs%d\\lang1048 " % (
        align, sb, sa, "\\fi709" if indent else "", extra, size)
    if bold:
        return fmt + "{\\b " + text + "}\\par"
    return fmt + text + "\\par"

def gol():
    return par("")

def semnaturi(stanga, dreapta):
    # two columns on a tab stop
    lines = []
    for a, b in zip(stanga, dreapta):
        lines.append("\\pard\\plain \\ql\\widctlpar\\tx5670\\f0\\fs24\\lang1048 {\\b %s}\\tab {\\b %s}\\par" % (a, b))
    return lines

def tabel(coloane, randuri, cap=True):
    # coloane: list of (width twips, header text); randuri: list of lists of cell texts
    out = []
    def rand(celule, bold=False):
        s = "\\trowd \\trgaph70\\trleft0\\trbrdrt\\brdrs\\brdrw10 \\trbrdrl\\brdrs\\brdrw10 \\trbrdrb\\brdrs\\brdrw10 \\trbrdrr\\brdrs\\brdrw10 \\trbrdrh\\brdrs\\brdrw10 \\trbrdrv\\brdrs\\brdrw10 "
        x = 0
        for w, _ in coloane:
            x += w
            s += "\\clvertalc\\clbrdrt\\brdrs\\brdrw10 \\clbrdrl\\brdrs\\brdrw10 \\clbrdrb\\brdrs\\brdrw10 \\clbrdrr\\brdrs\\brdrw10 \\cellx%d" % x
        out.append(s)
        cells = ""
        for c in celule:
            cells += "\\pard\\plain \\ql\\intbl\\widctlpar\\f0\\fs22\\lang1048 " + ("{\\b %s}" % c if bold else c) + "\\cell "
        out.append(cells + "\\row ")
    if cap:
        rand([h for _, h in coloane], True)
    for r in randuri:
        rand(r)
    out.append(r"\pard\plain \ql\widctlpar\f0\fs24\lang1048 ")
    return out

def scrie(nume, titlu, linii):
    text = HEADER.replace("TITLU", titlu) + "\r\n" + "\r\n".join(linii) + "\r\n}\r\n"
    with open(os.path.join(OUT, nume), "wb") as f:
        f.write(text.replace("\r\n", "\n").replace("\n", "\r\n").encode("ascii"))

def antet_dispozitie(subtitlu):
    return [
        par("ROMANIA", bold=True),
        par("JUDETUL #Judet#", bold=True),
        par("PRIMARIA #Localitate#", bold=True),
        par("Cod fiscal: #CodFiscal#"),
        gol(),
        par("DISPOZITIA nr. #Nr##COD# din #DataDisp#", align="qc", bold=True, size=28, sb=240),
        par(subtitlu, align="qc", bold=True, sa=240),
        par("Primarul din #TipLoc# #Localitate#, judetul #Judet#;", align="qj", indent=True),
    ]

TEMEI = [
    "In conformitate cu prevederile Legii nr. 277/2010 privind alocatia pentru sustinerea familiei, republicata, cu modificarile si completarile ulterioare, si ale Normelor metodologice de aplicare a prevederilor Legii nr. 277/2010 privind alocatia pentru sustinerea familiei, aprobate prin Hotararea Guvernului nr. 38/2011, cu modificarile si completarile ulterioare;",
    "In temeiul art. 63 alin. (5) lit. c) si al art. 68 alin. (1) din Legea administratiei publice locale nr. 215/2001, republicata, cu modificarile si completarile ulterioare,",
]

def corp_dispozitie(subtitlu, avand, articole, obligatie=True):
    l = antet_dispozitie(subtitlu)
    for a in avand:
        l.append(par(a, align="qj", indent=True))
    for t in TEMEI:
        l.append(par(t, align="qj", indent=True))
    l.append(par("D I S P U N E :", align="qc", bold=True, sb=240, sa=240))
    for i, a in enumerate(articoleComune(articole, obligatie), 1):
        l.append("\\pard\\plain \\qj\\sa120\\widctlpar\\fi709\\f0\\fs24\\lang1048 {\\b Art. %d.} %s\\par" % (i, a))
    l.append(gol())
    l += semnaturi(["PRIMAR,", "#Primar#", ""], ["Contrasemneaza,", "SECRETAR,", "#secretar#"])
    return l

def articoleComune(specifice, obligatie):
    return specifice + ([
        "Titularul dreptului, #sex1# #Nume#, are obligatia sa comunice primariei, in scris, in termen de 15 zile, orice modificare intervenita in numarul membrilor familiei si in veniturile acesteia."] if obligatie else []) + [
        "Impotriva prezentei dispozitii se poate formula contestatie, in termen de 30 de zile de la comunicare, potrivit Legii contenciosului administrativ nr. 554/2004, cu modificarile si completarile ulterioare.",
        "Compartimentul de asistenta sociala va duce la indeplinire prevederile prezentei dispozitii, iar secretarul o va comunica Institutiei Prefectului - judetul #Judet#, Agentiei Judetene pentru Plati si Inspectie Sociala #Judet# si #sex# #Nume#.",
    ]

CERERE = "Avand in vedere cererea nr. #NrC# din #DataC#, depusa de #sex1# #Nume#, CNP #CNP#, cu domiciliul in #Adresa#, judetul #JudetD#, pentru acordarea alocatiei pentru sustinerea familiei #tip#, precum si actele doveditoare anexate acesteia;"

os.makedirs(OUT, exist_ok=True)

scrie("acordare.rtf", "Dispozitie de acordare", corp_dispozitie(
    "privind acordarea alocatiei pentru sustinerea familiei",
    [CERERE,
     "Vazand referatul compartimentului de asistenta sociala, din care rezulta ca familia, cu #NrCopii# #copii# in intretinere, indeplineste conditiile de acordare a dreptului;"],
    ["Incepand cu data de #DinData#, se acorda #numit# #Nume#, CNP #CNP#, alocatia pentru sustinerea familiei #tip#, pentru #NrCopii# #copii#, in cuantum de #suma# lei lunar, stabilit potrivit baremului de #barem# ISR.",
     "Plata alocatiei se face lunar, pe baza prezentei dispozitii, de catre Agentia Judeteana pentru Plati si Inspectie Sociala #Judet#."]))

scrie("modificare.rtf", "Dispozitie de modificare", corp_dispozitie(
    "privind modificarea cuantumului alocatiei pentru sustinerea familiei",
    [CERERE,
     "Vazand referatul compartimentului de asistenta sociala privind modificarile intervenite in componenta familiei sau in veniturile acesteia, familia avand in intretinere #NrCopii# #copii#;"],
    ["Incepand cu data de #DinData#, cuantumul alocatiei pentru sustinerea familiei #tip# acordate #numit# #Nume#, CNP #CNP#, se modifica de la #sumav# lei la #suma# lei lunar, stabilit potrivit baremului de #barem# ISR.",
     "Motivul modificarii: #Motiv#."]))

scrie("suspendare.rtf", "Dispozitie de suspendare", corp_dispozitie(
    "privind suspendarea platii alocatiei pentru sustinerea familiei",
    [CERERE,
     "Vazand referatul compartimentului de asistenta sociala, din care rezulta ca titularul nu mai indeplineste temporar conditiile de plata a dreptului;"],
    ["Incepand cu data de #DinData#, se suspenda plata alocatiei pentru sustinerea familiei #tip#, acordata #numit# #Nume#, CNP #CNP#, pentru #NrCopii# #copii#.",
     "Motivul suspendarii: #Motiv#.",
     "Plata alocatiei se reia, la cererea titularului, dupa incetarea cauzei care a determinat suspendarea, in conditiile legii."]))

scrie("respingere.rtf", "Dispozitie de respingere", corp_dispozitie(
    "privind respingerea cererii de acordare a alocatiei pentru sustinerea familiei",
    [CERERE,
     "Vazand referatul compartimentului de asistenta sociala, din care rezulta ca familia nu indeplineste conditiile de acordare a dreptului;"],
    ["Se respinge cererea nr. #NrC# din #DataC#, depusa de #numit1# #Nume#, CNP #CNP#, pentru acordarea alocatiei pentru sustinerea familiei #tip#, pentru #NrCopii# #copii#.",
     "Motivul respingerii: #Motiv#."], obligatie=False))

scrie("incetare.rtf", "Dispozitie de incetare", corp_dispozitie(
    "privind incetarea dreptului la alocatia pentru sustinerea familiei",
    [CERERE,
     "Vazand referatul compartimentului de asistenta sociala, din care rezulta ca familia nu mai indeplineste conditiile de acordare a dreptului;"],
    ["Incepand cu data de #DinData#, inceteaza dreptul #numit# #Nume#, CNP #CNP#, la alocatia pentru sustinerea familiei #tip#, acordata pentru #NrCopii# #copii#.",
     "Motivul incetarii: #Motiv#."], obligatie=False))

scrie("reluare.rtf", "Dispozitie de reluare", corp_dispozitie(
    "privind reluarea platii alocatiei pentru sustinerea familiei",
    [CERERE,
     "Vazand referatul compartimentului de asistenta sociala, din care rezulta ca a incetat cauza care a determinat suspendarea platii, familia avand in intretinere #NrCopii# #copii#;"],
    ["Incepand cu data de #DinData#, se reia plata alocatiei pentru sustinerea familiei #tip# acordate #numit# #Nume#, CNP #CNP#, in cuantum de #suma# lei lunar, stabilit potrivit baremului de #barem# ISR.",
     "Titularul dreptului, #numit1# #Nume#, va fi inscris(a) in evidenta beneficiarilor de alocatie incepand cu luna reluarii platii."]))

# Declaration
decl = [
    par("ROMANIA", bold=True),
    par("JUDETUL #Judet#", bold=True),
    par("PRIMARIA #Localitate#", bold=True),
    par("Anexa la cererea nr. #NrC# din #DataC#", align="qr"),
    par("DECLARATIE PE PROPRIA RASPUNDERE", align="qc", bold=True, size=28, sb=240),
    par("privind componenta familiei si veniturile realizate de membrii acesteia", align="qc", bold=True, sa=240),
    par("Subsemnatul(a) #nume#, CNP #cnp#, cu domiciliul in #adresa#, cunoscand prevederile Codului penal privind falsul in declaratii, declar pe propria raspundere ca familia mea are urmatoarea componenta:", align="qj", indent=True, sa=120),
]
decl += tabel([(600, "Nr."), (3400, "Numele si prenumele"), (1900, "CNP"), (1700, "Relatia cu titularul"), (1754, "Ocupatia")],
              [["#n%d#" % n, "#nume%d#" % n, "#cnp%d#" % n, "#r%d#" % n, "#o%d#" % n] for n in range(1, 13)])
decl.append(par("si ca veniturile nete realizate de membrii familiei in luna anterioara depunerii cererii sunt urmatoarele:", align="qj", indent=True, sb=240, sa=120))
decl += tabel([(2000, "Cod venit"), (2500, "Suma (lei)")],
              [["#c%d#" % n, "#cu%d#" % n] for n in range(1, 13)] + [["{\\b TOTAL}", "{\\b #tot#}"]])
decl += [
    par("Declar ca nu detin bunuri care, potrivit legii, conduc la excluderea familiei de la dreptul la alocatia pentru sustinerea familiei si ca am luat la cunostinta obligatia de a comunica, in termen de 15 zile, orice modificare a componentei familiei si a veniturilor acesteia.", align="qj", indent=True, sb=240),
    gol(),
]
decl += semnaturi(["Data: #DataC#", ""], ["Semnatura titularului,", "...................................."])
scrie("declaratie.rtf", "Declaratie de venituri", decl)

fisa = [
    par("ROMANIA", bold=True),
    par("JUDETUL #Jud#", bold=True),
    par("PRIMARIA #Loc#", bold=True),
    par("Compartimentul de asistenta sociala"),
    par("FISA DE CALCUL", align="qc", bold=True, size=28, sb=240),
    par("a alocatiei pentru sustinerea familiei", align="qc", bold=True, sa=240),
    par("Cererea nr. #NrC# din #DataCerere#", sa=60),
    par("Titularul cererii: #Titular#", sa=120),
]
fisa += tabel([(6200, "Elemente de calcul"), (3154, "Valoare")],
              [["Numar de membri ai familiei", "#NrMembrii#"],
               ["Numar de copii in intretinere", "#NrCopii#"],
               ["Venitul net total al familiei (lei)", "#VenitTotal#"],
               ["Venitul net lunar pe membru de familie (lei)", "#VenitpeMembru#"],
               ["Cuantumul lunar al alocatiei (lei)", "#Cuantum#"]])
fisa += [
    par("Calculul s-a facut potrivit Legii nr. 277/2010 privind alocatia pentru sustinerea familiei, republicata, cu modificarile si completarile ulterioare, si Normelor metodologice de aplicare a acesteia, aprobate prin Hotararea Guvernului nr. 38/2011.", align="qj", indent=True, sb=240),
    gol(),
]
fisa += semnaturi(["Data: ##data##", ""], ["Intocmit, asistent social", "#AsSocial#"])
scrie("fisa.rtf", "Fisa de calcul", fisa)
