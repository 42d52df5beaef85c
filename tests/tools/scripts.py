"""Loads the scripts of tools/, which bear no suffix, as modules."""
import importlib.util
import pathlib
import sys
from importlib.machinery import SourceFileLoader

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "tools"))


def load(name):
    loader = SourceFileLoader(name, str(ROOT / "tools" / name))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader(name, loader))
    loader.exec_module(module)
    return module
