#include "Calendar.h"

#include <QString>

#include <iterator>

namespace {

struct Order
{
    const char* pszName;
    const char* pszTyped; ///< format in a field
    const char* pszShown; ///< format elsewhere
    const char* pszShort; ///< the same without the year
};

const Order orders[] = {{"mdy", "MM/dd/yyyy", "MM/dd/yyyy", "MM/dd"},
                        {"dmy", "dd/MM/yyyy", "dd/MM/yyyy", "dd/MM"},
                        {"ymd", "yyyy/MM/dd", "yyyy-MM-dd", "MM-dd"}};

const Order& orderOf(const std::string& strOrder)
{
    return orders[orderNumber(strOrder)];
}

} // namespace

unsigned int orderNumber(const std::string& strOrder)
{
    unsigned int nOrder = 0;
    while (nOrder + 1 < std::size(orders) && strOrder != orders[nOrder].pszName)
        ++nOrder;
    return nOrder;
}

std::string dateText(const QDate& date, const std::string& strOrder)
{
    return date.toString(QLatin1String(orderOf(strOrder).pszShown)).toStdString();
}

std::string shortTimeText(const std::string& strTime, const std::string& strOrder)
{
    const QString strStored = QString::fromStdString(strTime);
    const QDate date = QDate::fromString(strStored.left(10), Qt::ISODate);
    return (date.toString(QLatin1String(orderOf(strOrder).pszShort)) + strStored.mid(10))
        .toStdString();
}

QDate typedDate(const std::string& strText, const std::string& strOrder)
{
    return QDate::fromString(QString::fromStdString(strText),
                             QLatin1String(orderOf(strOrder).pszTyped));
}
