// Small templates of the window layer's own tests.
#pragma once

#include "platform/resource/Resource.h"
#include "platform/window/Dialog.h"
#include "tests/support/TestApp.h"

#include <functional>
#include <string>
#include <vector>

// Puts one dialog template, number 1, at the head of the resource chain while it lives.
class TestTemplate {
  public:
    explicit TestTemplate(std::vector<platform::ControlTemplate> controls,
                          DWORD style = WS_POPUP | WS_CAPTION | WS_VISIBLE, int cx = 200, int cy = 120,
                          DWORD exStyle = 0)
        : m_controls(std::move(controls)),
          m_dialog{1, 0, 0, cx, cy, "Prova", style, exStyle, "MS Sans Serif", 8, 0, m_controls},
          m_module{"tests", {&m_dialog, 1}, {}, {}, {}} {
        platform::SetHostResources(&m_module);
    }
    ~TestTemplate() { platform::SetHostResources(nullptr); }
    TestTemplate(const TestTemplate&) = delete;
    TestTemplate& operator=(const TestTemplate&) = delete;

  private:
    std::vector<platform::ControlTemplate> m_controls;
    platform::DialogTemplate m_dialog;
    platform::ResourceModule m_module;
};

// Controls of a template, one below the other unless a place is given.
class ControlRows {
  public:
    ControlRows& Edit(int id, DWORD style = 0) {
        return Add("EDIT", "", id, WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL | style);
    }
    ControlRows& Label(const char* text, int id = -1) { return Add("STATIC", text, id, WS_GROUP); }
    ControlRows& Button(const char* text, int id, DWORD style = BS_PUSHBUTTON) {
        return Add("BUTTON", text, id, WS_TABSTOP | style);
    }
    ControlRows& Radio(const char* text, int id, bool first = false) {
        return Add("BUTTON", text, id, BS_AUTORADIOBUTTON | (first ? WS_GROUP | WS_TABSTOP : 0u));
    }
    ControlRows& Add(const char* className, const char* text, int id, DWORD style) {
        m_controls.push_back({platform::ControlTemplate::Kind::Custom, className, text, id, 5, m_y, 80, 12,
                              WS_CHILD | WS_VISIBLE | style, 0, 0});
        m_y += 14;
        return *this;
    }
    ControlRows& Disabled() {
        m_controls.back().style |= WS_DISABLED;
        return *this;
    }
    operator std::vector<platform::ControlTemplate>() const { return m_controls; }

  private:
    std::vector<platform::ControlTemplate> m_controls;
    int m_y = 5;
};

// Collects the texts of message boxes while it lives, and runs `during` while one is up.
class Boxes {
  public:
    explicit Boxes(std::function<void()> during = {}) {
        TestApp::Instance().messageHandler = [this, during](const CString& text, UINT) {
            texts.push_back(text.ToUtf8());
            if (during)
                during();
            return int{IDOK};
        };
    }
    ~Boxes() { TestApp::Instance().messageHandler = nullptr; }
    Boxes(const Boxes&) = delete;
    Boxes& operator=(const Boxes&) = delete;

    std::vector<std::string> texts;
};
