#pragma once
// Plays an operator from a script against the whole program, with no window on the screen.

#include <istream>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "headless/session.h"
#include "script/script_words.h"

namespace lw {
class Program;
struct Control;
class Form;
}  // namespace lw

namespace lw::headless {
class HeadlessProgram;
}  // namespace lw::headless

namespace lw::script {

class ScriptRunner {
public:
    ScriptRunner(std::ostream& out, std::string executableFolder);
    ~ScriptRunner();

    // Runs the whole script; returns the exit status: 0 all held, 1 a check failed, 2 the script cannot run.
    int run(std::istream& script);

private:
    class Checks;  // the kinds of `expect`, in script_checks.cpp

    void execute(const std::vector<std::string>& words);
    void setUp(const std::vector<std::string>& words);
    void start();
    void ensureRoot();
    void prepareFile(const std::vector<std::string>& words);
    void act(const std::vector<std::string>& words);
    void chooseMenuItem(const std::vector<std::string>& words);
    void pressFrameButton(const std::vector<std::string>& words);
    void clickTab(Control& tabs, const std::string& which);
    void queueAnswer(const std::vector<std::string>& words);
    void check(const std::vector<std::string>& words);
    void showValue(const std::vector<std::string>& words);
    void list(const std::vector<std::string>& words);
    void listMenu();
    void listControls();

    Form& inputForm() const;
    Control& control(const std::string& reference) const;
    std::string property(const Control& control, const std::string& name) const;
    std::string global(const std::string& name) const;
    bool isFormName(const std::string& name) const;
    std::string formProperty(const std::string& formName, const std::string& name) const;
    std::string path(const std::string& word) const;
    void expectThat(bool held, const std::string& got);
    void requireRunning(const std::string& what) const;

    std::ostream& out_;
    headless::Session session_;
    std::unique_ptr<headless::HeadlessProgram> headless_;
    Program* program_ = nullptr;
    bool started_ = false;
    int line_ = 0;
    std::string lineText_;
    int passed_ = 0;
    int failed_ = 0;
};

}  // namespace lw::script
