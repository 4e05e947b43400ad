// The page as a whole: its state, its parts, and what of the camera it shows.

import { byId, later, memory, setText } from './dom.js';
import { Curves } from './curves.js';
import { FunctionList } from './list.js';
import { Functions } from './functions.js';
import { Link } from './link.js';
import { PictureView } from './picture.js';
import { Settings } from './settings.js';
import { Shapes } from './shapes.js';
import { Trace } from './trace.js';

const states = { ready: 'ready', lost: 'camera lost', held: 'no control', closed: 'no connection' };
const retry = 1000; // milliseconds, after functions could not be read
const tabs = ['curves', 'trace', 'settings'];

const link = new Link();
const functions = new Functions(link);
const tell = later(20, sendView);
const curves = new Curves(link, functions, (opens) => {
	if (opens) {
		openTab('curves');
	}
	tell();
});
const list = new FunctionList(functions, curves, tell);
const picture = new PictureView(link, curves, tell);
const trace = new Trace(link, tell);
new Shapes(functions, picture);
new Settings(link);

function sendView() {
	link.sendView({
		type: 'view', visible: !document.hidden, functions: [...new Set([...list.shown(), ...curves.shown()])],
		trace: trace.wanted(), picture: picture.wish(),
	});
}

function showState(state, message) {
	document.documentElement.dataset.state = state;
	setText(byId('state'), states[state] ?? state);
	setText(byId('banner'), message.replace(/^./, (letter) => letter.toUpperCase()));
	byId('banner').hidden = message === '';
	showTitle();
}

function showTitle() {
	const { state } = document.documentElement.dataset;
	const prefix = document.hidden ? 'paused' : state && state !== 'ready' ? states[state] : '';
	document.title = `${prefix ? `${prefix}: ` : ''}${byId('model').textContent}`;
}

/** After each connection, and when the camera is back: everything may have changed. */
async function load() {
	const { status, body: camera } = await link.request('GET', '/api/camera');
	if (status === 200 && camera.state !== 'lost') {
		setText(byId('model'), camera.model);
		setText(byId('identity'), [camera.family, camera.serial, camera.connection].filter(Boolean).join(' · '));
		setText(byId('version'), `qdv12host ${camera.version}`);
		showTitle();
		if (await functions.load()) {
			list.build();
			byId('trigger').closest('label').hidden = !functions.get('softtrigger');
			tell();
		} else {
			setTimeout(load, retry);
		}
	}
}

function openTab(name, focuses = false) {
	for (const tab of tabs) {
		const button = byId(`tab-${tab}`);
		button.setAttribute('aria-selected', tab === name);
		button.tabIndex = tab === name ? 0 : -1;
		byId(tab).hidden = tab !== name;
	}
	if (focuses) {
		byId(`tab-${name}`).focus();
	}
	memory.set('tab', name);
	tell();
}

function handleTabs() {
	for (const [index, tab] of tabs.entries()) {
		byId(`tab-${tab}`).onclick = () => openTab(tab);
		byId(`tab-${tab}`).onkeydown = (event) => {
			const step = { ArrowRight: 1, ArrowLeft: -1 }[event.key];
			if (step) {
				openTab(tabs.at((index + step) % tabs.length), true);
			}
		};
	}
	openTab(memory.get('tab', 'curves'));
}

function handleDivider() {
	const divider = byId('divider');
	const least = 90;
	const setHeight = (wanted) => {
		const height = Math.round(Math.min(Math.max(wanted, least), innerHeight / 1.6));
		document.documentElement.style.setProperty('--dock', `${height}px`);
		divider.setAttribute('aria-valuenow', height);
		memory.set('dock', height);
	};
	setHeight(memory.get('dock', innerHeight / 4));
	divider.onpointerdown = (event) => divider.setPointerCapture(event.pointerId);
	divider.onpointermove = (event) => {
		if (divider.hasPointerCapture(event.pointerId)) {
			setHeight(byId('dock').getBoundingClientRect().bottom - event.clientY);
		}
	};
	divider.onkeydown = (event) => {
		const step = { ArrowUp: 20, ArrowDown: -20 }[event.key];
		if (step) {
			event.preventDefault();
			setHeight(byId('dock').clientHeight + step);
		}
	};
}

let isFresh = true;
link.on('open', () => {
	isFresh = true;
	sendView();
});
link.on('closed', (message) => showState('closed', message));
link.on('state', ({ state, message }) => {
	const wasLost = document.documentElement.dataset.state === 'lost';
	showState(state, message);
	if (state !== 'lost' && (isFresh || wasLost)) {
		isFresh = false;
		load();
	}
});
document.addEventListener('visibilitychange', () => {
	sendView();
	showTitle();
});
document.addEventListener('keydown', (event) => {
	if (event.key === '/' && !event.target.matches('input, select')) {
		event.preventDefault();
		byId('filter').focus();
	}
});
handleTabs();
handleDivider();
link.connect();
