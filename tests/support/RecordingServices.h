#ifndef VARNEL_TESTS_SUPPORT_RECORDINGSERVICES_H
#define VARNEL_TESTS_SUPPORT_RECORDINGSERVICES_H

#include <list>
#include <map>
#include <string>
#include <vector>

#include "varnel/contracts/KzVector3D.h"
#include "varnel/exchange/VarnelExchange.h"
#include "varnel/process/VarnelCalculator.h"
#include "varnel/process/VarnelConverter.h"
#include "varnel/process/VarnelDataChecker.h"
#include "varnel/process/VarnelDesigner.h"
#include "varnel/process/VarnelErrorHandler.h"
#include "varnel/process/VarnelFactory.h"

/// Services that note every call, in order, in one common record and can be told how to answer.
namespace recording {

using Calls = std::vector<std::string>;

/// What the services of one factory are to answer, and what they were asked.
struct Script {
    Calls calls;
    int convert = 1;
    int execute = 1;
    bool checkSystem = true;
    bool fileInput = true;
    std::string throwIn;  // the call that throws, if any

    void note(const std::string &call);
    /// The calls since the last time, which are forgotten.
    Calls take();
};

class Converter : public VarnelConverter {
  public:
    explicit Converter(Script &script) : script_(script) {}

    void output() override { script_.note("converter.output"); }
    void initInstance(VarnelManager *manager) override;
    double getTolerance() override { return tolerance_; }
    void setTolerance(double tolerance) override { tolerance_ = tolerance; }
    int convert(VarnelSubSystem *subSystem) override;

  private:
    void setCurrentLoadcase(int number) override;
    void setProjectPath(const std::string &path) override;
    void removeAll() override { script_.note("converter.removeAll"); }
    void modifyModel() override { script_.note("converter.modifyModel"); }

    Script &script_;
    double tolerance_ = 0.25;
};

class Calculator : public VarnelCalculator {
  public:
    explicit Calculator(Script &script) : script_(script) {}

    int execute() override;
    void setDoOutput(bool value) override;

  private:
    Script &script_;
};

class Designer : public VarnelDesigner {
  public:
    explicit Designer(Script &script) : script_(script) {}

    void exitInstance() override { script_.note("designer.exitInstance"); }
    void execute(VarnelSubSystem *subSystem) override;
    void output() override { script_.note("designer.output"); }
    void setDoOutput(bool value) override;
    void getLineBoundaryResult(SysBase::Loadcase *loadcase, VarnelLineBoundaryData *boundary,
                               VarnelLineResult &result) override;
    std::map<VarnelPointBoundary *, VarnelPointResultData> getPointBoundaryResults(
        SysBase::Loadcase *loadcase) override;

  private:
    Script &script_;
};

class DataChecker : public VarnelDataChecker {
  public:
    explicit DataChecker(Script &script) : script_(script) {}
    bool checkSystem(VarnelManager *manager) override;

  private:
    Script &script_;
};

class ErrorHandler final : public VarnelErrorHandler {
  public:
    explicit ErrorHandler(Script &script) : script_(script) {}
    void display(const std::list<std::string> &messages) const override;
    void display(const std::string &message) const override;

  private:
    Script &script_;
};

class Exchange : public VarnelExchange {
  public:
    explicit Exchange(Script &script) : script_(script) {}

    void fileOutput(const Tools::Path &path) override;
    bool fileInput(const Tools::Path &path) override;
    void get(VarnelManager *manager) override;
    void updateResults(VarnelManager *manager) override;
    void updateSystem(VarnelManager *manager) override;
    void loadProjectSettings(const std::string &path) override;
    void saveProjectSettings(const std::string &path) override;
    void updateSettings(VarnelManager *) override {}
    void open(const std::string &) override {}
    void close() override {}
    void updateVector(const KzVector3D &) override {}
    void openToAttribute(const std::string &, const std::string &, const std::string &) override {}
    void openToAttribute(const std::string &, const std::string &, double) override {}
    void openToAttribute(const std::string &, const std::string &, int) override {}
    void flush() override {}

  private:
    Script &script_;
};

/// Makes recording services; each kind can be switched off to answer null.
class Factory : public VarnelFactory {
  public:
    ~Factory() override;

    VarnelCalculator *giveCalculator() const override;
    VarnelConverter *giveConverter() const override;
    VarnelDesigner *giveDesigner() const override;
    VarnelExchange *giveExchange() const override;
    VarnelDataChecker *giveDataChecker() override;
    VarnelErrorHandler *giveErrorHandler() const override;

    mutable Script script;
    bool hasCalculator = true;
    bool hasConverter = true;
    bool hasDesigner = true;
    bool hasExchange = true;
    bool hasDataChecker = true;
    bool hasErrorHandler = true;
    mutable int made = 0;  // services made so far

  private:
    template <class Service, class Base>
    Base *give(bool has) const;

    mutable std::list<ErrorHandler> handlers_;  // the manager leaves them to the host
};

/// Recording services beside the exchange that reads and writes documents.
class DocumentFactory : public Factory {
  public:
    VarnelExchange *giveExchange() const override;
};

}  // namespace recording

#endif
