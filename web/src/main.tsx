// SPDX-License-Identifier: MIT
import { render } from "preact";

import "./styles.css";
import { App } from "./view/app.tsx";

render(<App />, document.getElementById("app")!);
