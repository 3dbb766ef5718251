#pragma once

#include <QAbstractButton>
#include <QFont>
#include <QPixmap>
#include <QString>
#include <QWidget>

#include <string>
#include <unordered_map>

namespace bench {

/** Pictures by file, decoded once. */
class PictureCache
{
public:
    const QPixmap* get(const std::string& path);

private:
    std::unordered_map<std::string, QPixmap> m_pictures;
};

/** The font of all texts. */
const QFont& bodyFont();

/** Draws a picture and does nothing else. */
class PictureWidget : public QWidget
{
public:
    using QWidget::QWidget;

    const QPixmap* m_pUp = nullptr;

protected:
    void paintEvent(QPaintEvent* pEvent) override;
};

/** Draws one line of text. */
class TextWidget : public QWidget
{
public:
    using QWidget::QWidget;

    QString m_text;

protected:
    void paintEvent(QPaintEvent* pEvent) override;
};

/** Draws one of two pictures and a title over it. */
class ButtonWidget : public QWidget
{
public:
    using QWidget::QWidget;

    const QPixmap* m_pUp = nullptr;
    const QPixmap* m_pDown = nullptr;
    QString m_title;

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;

private:
    bool m_bPressed = false;
};

/** The same button on top of Qt's own base class for buttons. */
class QtButtonWidget : public QAbstractButton
{
public:
    using QAbstractButton::QAbstractButton;

    const QPixmap* m_pUp = nullptr;
    const QPixmap* m_pDown = nullptr;
    QString m_title;

protected:
    void paintEvent(QPaintEvent* pEvent) override;
};

} // namespace bench
