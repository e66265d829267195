#include "database/BD.h"

#include "common/Eroare.h"

#include <QFileInfo>
#include <QSqlError>
#include <QSqlRecord>
#include <QUuid>

namespace {

BD* g_principala = nullptr;
quint64 g_interogari = 0;

void pregateste(QSqlQuery& q, const QString& sql, const QVariantList& param)
{
    q.setForwardOnly(true);
    ++g_interogari;
    if (!q.prepare(sql))
        AruncaEroareSql(q.lastError(), sql);
    for (int i = 0; i < param.size(); ++i)
        q.bindValue(i, param[i]);
    if (!q.exec())
        AruncaEroareSql(q.lastError(), sql);
}

} // namespace

void AruncaEroareSql(const QSqlError& e, const QString& sursa)
{
    const QString text = e.databaseText().isEmpty() ? e.text() : e.databaseText();
    int numar = e.nativeErrorCode().toInt();
    if (text.contains(QLatin1String("no such table"), Qt::CaseInsensitive)
        || (text.contains(QLatin1String("relation")) && text.contains(QLatin1String("does not exist"))))
        numar = CodEroare::TabelaLipsa;
    if (numar == 0)
        numar = 3000;
    throw Eroare(numar, text, sursa);
}

Rezultat::Rezultat(QSqlQuery q)
    : m_q(std::move(q))
{
}

int Rezultat::index(const QString& coloana) const
{
    return m_q.record().indexOf(coloana);
}

QVariant Rezultat::operator[](const QString& coloana) const
{
    const int i = m_q.record().indexOf(coloana);
    if (i < 0)
        throw Eroare(3265, QStringLiteral("Coloana %1 nu exista in rezultat").arg(coloana), QStringLiteral("BD"));
    return m_q.value(i);
}

QVariant Rezultat::operator[](const char* coloana) const
{
    return (*this)[QString::fromLatin1(coloana)];
}

QString Rezultat::text(const char* coloana) const
{
    const QVariant v = (*this)[coloana];
    return v.isNull() ? QString() : v.toString();
}

qint64 Rezultat::numar(const char* coloana) const
{
    const QVariant v = (*this)[coloana];
    return v.isNull() ? 0 : v.toLongLong();
}

BD::BD()
    : m_nume(QStringLiteral("bd-") + QUuid::createUuid().toString(QUuid::WithoutBraces))
{
}

BD::~BD()
{
    inchide();
    if (g_principala == this)
        g_principala = nullptr;
}

BD& BD::principala()
{
    if (!g_principala) {
        // The engine's list of connections must outlive the shared connection, which closes
        // itself at exit: asked for first, it is made first and destroyed last.
        QSqlDatabase::contains(QString());
        static BD bd;
        g_principala = &bd;
    }
    return *g_principala;
}

void BD::deschide(const QString& cale, bool creeaza)
{
    inchide();
    const QFileInfo fi(cale);
    if (!creeaza && !fi.isFile())
        throw Eroare(3024, QStringLiteral("Fisierul %1 nu a fost gasit.").arg(cale), QStringLiteral("BD"));
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_nume);
        db.setDatabaseName(cale);
        db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=5000"));
        if (!db.open()) {
            const QSqlError e = db.lastError();
            db = QSqlDatabase();
            QSqlDatabase::removeDatabase(m_nume);
            AruncaEroareSql(e, cale);
        }
    }
    m_cale = cale;
    m_motor = Motor::SQLite;
    try {
        // Reading the catalogue proves that the file is a database.
        scalar(QStringLiteral("SELECT COUNT(*) FROM sqlite_master"));
        executa(QStringLiteral("PRAGMA foreign_keys = ON"));
    } catch (const Eroare& e) {
        inchide();
        throw Eroare(e.numar,
                     QStringLiteral("Fisierul %1 nu este o baza de date valida (%2).").arg(cale, e.descriere),
                     QStringLiteral("BD"));
    }
}

void BD::inchide()
{
    if (!QSqlDatabase::contains(m_nume))
        return;
    {
        QSqlDatabase db = QSqlDatabase::database(m_nume, false);
        db.close();
    }
    QSqlDatabase::removeDatabase(m_nume);
    m_nivel = 0;
    m_cale.clear();
}

bool BD::deschisa() const
{
    return QSqlDatabase::contains(m_nume) && QSqlDatabase::database(m_nume, false).isOpen();
}

QSqlDatabase BD::conexiune() const
{
    if (!deschisa())
        throw Eroare(3420, QStringLiteral("Baza de date nu este deschisa."), QStringLiteral("BD"));
    return QSqlDatabase::database(m_nume, false);
}

Rezultat BD::selecteaza(const QString& sql, const QVariantList& param) const
{
    QSqlQuery q(conexiune());
    pregateste(q, sql, param);
    return Rezultat(std::move(q));
}

QVariant BD::scalar(const QString& sql, const QVariantList& param) const
{
    QSqlQuery q(conexiune());
    pregateste(q, sql, param);
    if (!q.next())
        return {};
    return q.value(0);
}

int BD::executa(const QString& sql, const QVariantList& param) const
{
    QSqlQuery q(conexiune());
    pregateste(q, sql, param);
    return q.numRowsAffected();
}

qint64 BD::urmatoareaCheie(const QString& tabela, const QString& cheie) const
{
    const QVariant m = scalar(QStringLiteral("SELECT MAX(%1) FROM %2").arg(cheie, tabela));
    return m.isNull() || !m.isValid() ? 1 : m.toLongLong() + 1;
}

quint64 BD::numarInterogari()
{
    return g_interogari;
}

bool BD::tabelaExista(const QString& tabela) const
{
    return conexiune().tables().contains(tabela, Qt::CaseInsensitive);
}

QStringList BD::coloane(const QString& tabela) const
{
    const QSqlRecord r = conexiune().record(tabela);
    QStringList l;
    for (int i = 0; i < r.count(); ++i)
        l << r.fieldName(i);
    return l;
}

QString BD::luna(const QString& expr) const
{
    if (m_motor == Motor::PostgreSQL)
        return QStringLiteral("CAST(EXTRACT(MONTH FROM %1) AS INTEGER)").arg(expr);
    return QStringLiteral("CAST(strftime('%m', %1) AS INTEGER)").arg(expr);
}

QString BD::an(const QString& expr) const
{
    if (m_motor == Motor::PostgreSQL)
        return QStringLiteral("CAST(EXTRACT(YEAR FROM %1) AS INTEGER)").arg(expr);
    return QStringLiteral("CAST(strftime('%Y', %1) AS INTEGER)").arg(expr);
}

QString BD::conditieLike(const QString& expr) const
{
    if (m_motor == Motor::PostgreSQL)
        return QStringLiteral("%1 ILIKE ? ESCAPE '\\'").arg(expr);
    return QStringLiteral("%1 LIKE ? ESCAPE '\\'").arg(expr);
}

QString BD::valoareLike(const QString& text)
{
    QString t = text;
    t.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    t.replace(QLatin1Char('%'), QLatin1String("\\%"));
    t.replace(QLatin1Char('_'), QLatin1String("\\_"));
    return t;
}

QString BD::valoarePrefix(const QString& text)
{
    return valoareLike(text) + QLatin1Char('%');
}

void BD::incepe()
{
    if (m_nivel > 0) {
        // A write inside a larger one: a savepoint, so that it can give up alone.
        executa(QStringLiteral("SAVEPOINT nivel%1").arg(m_nivel));
        ++m_nivel;
        return;
    }
    if (m_motor == Motor::SQLite)
        executa(QStringLiteral("BEGIN IMMEDIATE"));
    else if (!conexiune().transaction())
        AruncaEroareSql(conexiune().lastError(), QStringLiteral("BEGIN"));
    m_nivel = 1;
}

void BD::confirma()
{
    if (m_nivel <= 0)
        return;
    if (m_nivel > 1) {
        --m_nivel;
        executa(QStringLiteral("RELEASE SAVEPOINT nivel%1").arg(m_nivel));
        return;
    }
    if (m_motor == Motor::SQLite)
        executa(QStringLiteral("COMMIT"));
    else if (!conexiune().commit())
        AruncaEroareSql(conexiune().lastError(), QStringLiteral("COMMIT"));
    m_nivel = 0;
}

void BD::anuleaza()
{
    if (m_nivel <= 0 || !deschisa()) {
        m_nivel = 0;
        return;
    }
    QSqlQuery q(conexiune());
    if (m_nivel > 1) {
        --m_nivel;
        q.exec(QStringLiteral("ROLLBACK TO SAVEPOINT nivel%1").arg(m_nivel));
        q.exec(QStringLiteral("RELEASE SAVEPOINT nivel%1").arg(m_nivel));
        return;
    }
    m_nivel = 0;
    if (m_motor == Motor::SQLite)
        q.exec(QStringLiteral("ROLLBACK"));
    else
        conexiune().rollback();
}

Tranzactie::Tranzactie(BD& bd)
    : m_bd(bd)
{
    m_bd.incepe();
}

Tranzactie::~Tranzactie()
{
    if (!m_gata)
        m_bd.anuleaza();
}

void Tranzactie::confirma()
{
    m_gata = true;
    m_bd.confirma();
}
