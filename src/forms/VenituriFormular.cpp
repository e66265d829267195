#include "forms/VenituriFormular.h"

namespace {

struct Rand {
    int cod; // 0: the heading of a category
    std::initializer_list<const char*> linii;
};

// The rows of the form's income table, in print order: each category heading, then its codes,
// the caption broken where the official form breaks it. Joined by blanks, the captions are the
// names of the income list (ListaVenituri).
const Rand Randuri[] = {
    {0, {"VENITURI DIN ACTIVITATI INDEPENDENTE "}},
    {1,
     {"Venituri din profesii libere veniturile obtinute din exercitarea",
      "profesiilor medicale, de avocat, notar, auditor financiar, consultant",
      "fiscal, expert contabil, contabil autorizat, consultant de plasament",
      "in valori mobiliare, arhitect sau a altor profesii reglementate,",
      "desfasurate in mod independent, in conditiile legii"}},
    {2,
     {"Venituri comerciale provenite din fapte de comert ale",
      "contribuabililor, din prestari de servicii, precum si din practicarea", "unei meserii"}},
    {3,
     {"Veniturile din valorificarea sub orice forma a drepturilor de",
      "proprietate intelectuala provin din brevete de inventie, desene si",
      "modele, mostre, marci de fabrica si de comert, procedee tehnice,",
      "know-how, din drepturi de autor si drepturi conexe dreptului de", "autor si altele asemenea"}},
    {0, {"SALARIUL SI ALTE DREPTURI SALARIALE"}},
    {4, {"Salariul obtinut pe baza de contract de munca/raport dee serviciu"}},
    {5, {"Salariul asistentului personal al persoanei cu handicap"}},
    {6, {"Salariul asistentului maternal"}},
    {7, {"Salariul ingrijitorului la domiciliu al persoanei varstnice dependente"}},
    {8,
     {"Venitul lunar realizat ca membru asociat sau persoana autorizata sa", "desfasoare o activitate independenta"}},
    {9, {"Indemnizatia de somajsi/sau venit lunar de completare"}},
    {10,
     {"indemnizatiile din activitati desfasurate ca urmare a unei functii de",
      "demnitate publica, stabilite potrivit legii"}},
    {11,
     {"indemnizatii din activitati desfasurate ca urmare a unei functii alese",
      "in cadrul persoanelor juridice fara scop patrimonial"}},
    {12,
     {"drepturile de solda lunara, indemnizatiile, primele, premiile,",
      "sporurile si alte drepturi ale personalului militar, acordate potrivit", "legii"}},
    {13,
     {"indemnizatia lunara bruta, precum si suma din profitul net, cuvenite ",
      "administratorilor la companii/societati nationale, societati comerciale",
      "la care statul sau o autoritate a administratiei publice locale este",
      "actionar majoritar, precum si la regiile autonome"}},
    {14,
     {"renumeratia obtinuta de directori in baza unui contract de mandat",
      "conform prevederilor legii societatilor comerciale"}},
    {15,
     {"renumeratia primita de presedintele asociatiei de propietari sau de",
      "alte persoane, in baza contractului de mandat, potrivit legii privind",
      "infiintarea, organizarea si functionarea asociatiilor de propietari"}},
    {16, {"sumele primite de membrii fondatori ai societatilor comerciale", "constituite prin subscriptie publica"}},
    {17,
     {"sumele primite de reprezentanti in adunarea generala a actionarilor",
      "in consiliul de administratie, membrii directoratului si ai consiliului",
      "de supraveghere, precum si in comisia de cenzori"}},
    {18, {"sumele primite de reprezentantii in organisme tripartite, potrivit legii"}},
    {19, {"indemnizatia lunara a asociatului unic, la nivelul valorii inscrise in", "declaratia de asigurari sociale"}},
    {20,
     {"sumele acordate de organizatii nonprofit si de alte entitati",
      "neplatitoare de impozit pe profit, peste limita de 2,5 ori nivelul legal",
      "stabilit pentru indemnizatia primita pe perioada delegarii si detasarii",
      "in alta localitate, in tara si in strainatate, in interesul serviciului",
      "pentru salariatii din institutiile publice"}},
    {21,
     {"indemnizatia administratorilor, precum si suma din  profitul net",
      "cuvenite administratorilor societatilor comerciale potrivit actului",
      "constitutiv sau stabilite de adunarea generala a actionarilor"}},
    {22,
     {"sume reprezentand salarii sau diferente de salarii stabilite in baza",
      "unor hatarari judecatoresti ranase definitive si irevocabile, precum",
      "si actualizarea acestora cu indicele de inflatie"}},
    {23,
     {"indemnizatiile lunare platite conform legii de angajatori pep perioada",
      " de neconcurenta, stabilite conform contractului individual de munca"}},
    {24, {" orice alte sume sau avantaje de natura salariala ori asimilate salariilor", " in vederea impunerii"}},
    {0, {"VENITURI DIN CEDAREA FOLOSINTEI BUNURILOR"}},
    {25,
     {"veniturile, in bani si/sau in natura, provenind din cedarea folosintei",
      "bunurilor mobile si imobile, obtinute de catre proprietar, uzufructuar",
      "sau alt detinator legal, altele decat veniturile din activitati", " independente"}},
    {0, {"VENITURI DIN INVESTITII"}},
    {26, {" dividende"}},
    {27, {"venituri impozabile din dobanzi"}},
    {28, {"castiguri din transferul titlurilor de valoare"}},
    {29,
     {"venituri din operatiuni de vanzare-cumparare de valuta la termen,",
      "pe baza de contract, precum si orice alte operatiuni similare"}},
    {30, {"venituri din lichidarea unei persoane juridice"}},
    {0, {"PENSII DE STAT"}},
    {31, {"pensia pentru limita de varsta"}},
    {32, {"pensia anticipata"}},
    {33, {"pensia anticipata partiala"}},
    {34, {"pensia de invaliditate"}},
    {35, {"pensia de urmas"}},
    {0, {"PENSII AGRICULTORI"}},
    {36, {"pensie agricultor"}},
    {0, {"PENSII MILITARE"}},
    {37, {"pensie de serviciu"}},
    {38, {"pensia de invaliditate"}},
    {39, {"pensia de urmas"}},
    {40, {"pensia I.O.V.R."}},
    {0, {"INDEMNIZATII"}},
    {41,
     {"Indemnizatia pt oersoanele care si-au pierdut total sau partial",
      "capacitatea de munca ca urmare a participarii la revolutie si pt.", "urmasii acestora"}},
    {42, {"Indemnizatia de insotitor pentru pensionari gr. I", "invaliditate/nevazatori handicap grav"}},
    {43, {"Indemnizatia pentru incapacitatea temporara de munca"}},
    {44, {"Indemnizatia lunara pentru activitatea de liber profesionist a", "artisitlor interpreti sau executanti"}},
    {0, {"INDEMNIZATII SI STIMULENTE PENTRU CRESTEREA COPILULUI"}},
    {45, {"Indemnizatia pentru maternitate"}},
    {46, {"Indemnizatia pentru cresterea copilului pana la varsta de 1, 2 sau 3", "ani"}},
    {47, {"Stimulent lunar/de insertie"}},
    {48, {"Indemnizatia si ajutoare pentru cresterea copilului cu handicap"}},
    {0, {"INDEMNIZATII CU CARACTER PERMANENT"}},
    {49, {"Indemnizatia lunara acordata magistratiilor inlaturati din justitie", "din considerente politice"}},
    {50, {"Indemnizatia lunara acordata persoanelor persecutate din motive", "politice sau etnice"}},
    {51, {"Indemnizatia, sporul sau renta acordata invalizilor, veteranilor si", "vaduvelor de razboi"}},
    {52,
     {"Indemnizatia lunara pentru persoanele care au efectuat stagiul",
      "militar in cadrul Directiei Generale a Serviciului Muncii in perioada", "1950-1961"}},
    {53,
     {"Indemnizatia lunara pentru pensionarii sistemului de pensii",
      "membrii ai uniunilor de creatie, legal constituite si recunoscute ca ",
      "persoane juridice de utilitate publica"}},
    {54, {"Indemnizatia lunara pentru persoanele cu handicap"}},
    {55, {"Indemnizatia cuvenita revolutionarilor"}},
    {56, {"Indemnizatia de merit acordata in temeiul Legii nr.118/2002"}},
    {57, {"Renta viagera pentru sportivi"}},
    {0, {"VENITURI DIN ACTIVITATI AGRICOLE"}},
    {58,
     {"Venituri din cultivarea si valorificarea florilor, legumelor si",
      "zarzavaturilor. in sere si solarii special destinate acestor scopuri", "si/sau in sistem"}},
    {59, {"Venituri din cultivarea si valorificarea arbustilor, plantelor", "decoratice si ciupercilor"}},
    {60, {"Venituri din exploatarea pepinierelor viticole si pomicole si altele", "asemenea"}},
    {61,
     {"Venituri din valorificarea produselor agricole obtinute dupa",
      "recoltare, in stare naturala, de pe terenurile agricole proprietate",
      "privata sau luate in arenda, catre unitati specializate pentru",
      "colectare, unitati de procesare industriala sau catre alte unitati", "pentru utilizare ca atare"}},
    {0, {"VENITURI DIN PREMII SI DIN JOCURI DE NOROC"}},
    {62, {"Veniturile din premii ce cuprind veniturile din concursuri"}},
    {63,
     {"Veniturile din jocuri de noroc ce cuprind castigurile realizate ca",
      "urmare a participarii la jocuri de noroc, inclusiv cele de tip jack-pot"}},
    {0, {"DEZMEMBRAMINTELOR ACESTUIA"}},
    {64,
     {"Venituri din transferul dreptului de proprietate si al",
      "dezmembramintelor acestuia, altele decat cele cu titlu de mostenire"}},
    {0, {"VENITURI DIN ALTE SURSE"}},
    {65,
     {"Prime de asigurari suportate de o persoana fizica independenta sau",
      "de orice alta entitate, in cadrul unei activitati pentru o persoana",
      "fizica in legatura cu suportatorul nu are o relatie generatoare de", "veituri si salarii"}},
    {66,
     {"Castiguri primite de la societatile de asigurari, ca urmare a",
      "contractului de asigurare incheiat intre parti cu ocazia tragerilor de", "amortizare"}},
    {67,
     {"Venituri sub forma diferentelro de pret pentru anumite bunuri,",
      "servicii si alte drepturi, primite de persoanel fizice pensionari, fosti",
      "salariati, potrivit clauzelor contractului de munca sau in baza unor", "legi speciale"}},
    {68, {"Venituri primite de persoanele fizice reprezentand onorarii din", "activitatea de arbitraj comercial"}},
    {69, {"Venituri din alte surse sunt orice venituri identificate ca fiind", "impozabile"}},
    {0, {"VENITURI OBTINUTE DIN STRAINATATE"}},
    {70, {"Venituri obtinute din strainatate"}},
    {0, {"ALOCATII"}},
    {71, {"Alocatia de stat pentru copii"}},
    {72, {"Alocatia lunara de plasament"}},
    {73, {"Alocatia de intretinere", "Hotarare judecatoreasca"}},
    {0, {"BURSE*"}},
    {74, {"pentru elevi"}},
    {75,
     {"pentru studenti", "*Cu exceptia burselor de studiu si a burselor sociale precum si a sprijinului financiar "
                         "prevazut de H.G. nr.1488/2004"}},
    {0, {"AJUTOARE"}},
    {76,
     {"Ajutorul banesc lunar pentru persoanele care au devenit incapabile",
      "de munca in perioada efectuarii unei pedepse privative de libertate"}},
    {0, {"ALTE SURSE DE VENIT"}},
    {77, {"Depozite bancare"}},
    {78, {"Renta viagera agricola"}},
    {79, {"Alte venituri"}},
};

// The proof documents asked for each category, by the index of its heading (0 to 18).
QStringList acte(int categorie)
{
    static const QStringList financiara{QStringLiteral("adeverinta eliberata de"),
                                        QStringLiteral("Administratia financiara")};
    static const QStringList decizie{QStringLiteral("mandat postal/ extras de cont/"), QStringLiteral("decizie")};
    switch (categorie) {
    case 1: return {QStringLiteral("adeverinta eliberata de"), QStringLiteral("angajator")};
    case 7: return {QStringLiteral("adeverinta eliberata de"), QStringLiteral("mandat postal/ extras de cont/")};
    case 4:
    case 5:
    case 6:
    case 8:
    case 9:
    case 15: return decizie;
    case 14: return {QStringLiteral("Contract de munca")};
    case 16: return {QStringLiteral("adeverinta institutie invatamant")};
    case 17: return {QStringLiteral("decizie"), QStringLiteral("mandat postal /extras de cont/")};
    default: return financiara;
    }
}

std::vector<RandVenitFormular> construieste()
{
    std::vector<RandVenitFormular> r;
    int categorie = -1;
    for (const Rand& x : Randuri) {
        RandVenitFormular v;
        v.cod = x.cod;
        for (const char* l : x.linii)
            v.linii << QString::fromLatin1(l);
        if (x.cod == 0)
            ++categorie;
        v.categorie = categorie;
        v.acte = acte(categorie);
        r.push_back(std::move(v));
    }
    return r;
}

} // namespace

const std::vector<RandVenitFormular>& RanduriVenituriFormular()
{
    static const std::vector<RandVenitFormular> r = construieste();
    return r;
}
